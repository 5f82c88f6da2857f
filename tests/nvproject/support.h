// Projects in memory, projects on disk, and message boxes that are caught.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "declared/nv_project.h"
#include "support/temp_directory.h"

namespace merovane::nvproject::testing {

inline constexpr int kChar = 1, kShort = 2, kLong = 4, kArray = 5, kString = 6, kStruct = 7;

// A field for each key of an item; a size above 0 is written.
struct TestItem {
  std::string name = {};
  int type = kChar;
  int parent = -1;
  std::uint32_t length = 0;
  std::string content = {};
  std::uint32_t id = 0;
  std::uint32_t size = 0;
  // The item's position when it is not given.
  int index = -2;
};

std::string ModuleFile(const std::vector<TestItem>& items, std::string_view name = "m");
std::string ProjectFile(const std::vector<std::string>& modules);

// A parser that sees these files only.
std::unique_ptr<CFileParser> ParserOf(std::map<std::string, std::string> files);

// Loads a project of these modules.
std::unique_ptr<CFileParser> Load(const std::vector<std::vector<TestItem>>& modules);

// Message boxes while it lives, as "caption: text".
class CaughtMessages {
 public:
  CaughtMessages();
  ~CaughtMessages();
  const std::vector<std::string>& Texts() const { return texts_; }

 private:
  std::vector<std::string> texts_;
};

// Builds the image, from a buffer of other bytes; a failure leaves buffer and length as they are.
Result Generate(CFileParser& parser, std::vector<std::uint8_t>& image,
                const ImageContext& context = {});

// The content of that path; "?" when there is none.
std::string Content(CFileParser& parser, std::string_view path);

}  // namespace merovane::nvproject::testing
