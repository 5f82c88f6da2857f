// What `merovane project` does: each function is a subcommand, writes to `out`, and returns the
// program's exit code.
#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>

namespace merovane::tool {

// Like diff's: 1 says that something is different or wrong, 2 that it could not be found out.
inline constexpr int kOk = 0;
inline constexpr int kDifferent = 1;
inline constexpr int kTrouble = 2;

// A project or file that cannot be used; the text is for people.
class Trouble : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The items with their values; of those whose path contains `filter`, letter case ignored.
int Show(const std::string& project, const std::string& filter, bool json, std::ostream& out);

int Get(const std::string& project, const std::string& path, std::ostream& out);
// Writes the module file that holds the item anew.
int Set(const std::string& project, const std::string& path, const std::string& value,
        std::ostream& out);

// Says with file and line what is wrong.
int Check(const std::string& project, std::ostream& out);

struct ImageOptions {
  std::optional<std::string> output;  // none: a hex dump
  bool littleEndian = false;
  bool map = false;
  std::uint32_t timeStamp = 0;
};
int Image(const std::string& project, const ImageOptions& options, std::ostream& out);

// Two projects by path, or two images by item; images are told by their content.
int Diff(const std::string& first, const std::string& second, bool littleEndian, std::ostream& out);

}  // namespace merovane::tool
