// What `merovane project` does: each function is a subcommand, writes to `out`, and returns the
// program's exit code.
#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include "nvproject/item.h"
#include "support/exit_codes.h"

namespace merovane::tool {

// The items with their values; of those whose path contains `filter`, letter case ignored.
int Show(const std::string& project, const std::string& filter, bool json, std::ostream& out);

int Get(const std::string& project, const std::string& path, std::ostream& out);
// Writes the module file that holds the item anew, if the value is another than before.
int Set(const std::string& project, const std::string& path, const std::string& value,
        std::ostream& out);

// Whether a value can be the item's: a number that its type holds; anything where it is no number.
bool Fits(const nvproject::Item& item, const std::string& value);

// Says with file and line what is wrong.
int Check(const std::string& project, std::ostream& out);

struct ImageOptions {
  std::optional<std::string> output;   // none: a hex dump
  std::optional<std::string> dspCode;  // a file: its code comes ahead of the items
  bool littleEndian = false;
  bool map = false;
  std::uint32_t timeStamp = 0;
};
int Image(const std::string& project, const ImageOptions& options, std::ostream& out);

struct NewOptions {
  std::optional<std::string> name;  // none: the file's
  std::string target;
};
// Writes the file of a project without modules, where no file is yet.
int New(const std::string& project, const NewOptions& options, std::ostream& out);
// Writes the project file and its module files anew. The file names them by absolute paths then.
int Save(const std::string& project, std::ostream& out);

// Two projects by path, or two images by item; images are told by their content.
int Diff(const std::string& first, const std::string& second, bool littleEndian, std::ostream& out);

}  // namespace merovane::tool
