#include "nvproject/support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <utility>

#include "platform/console.h"

namespace merovane::nvproject::testing {

std::string ModuleFile(const std::vector<TestItem>& items, std::string_view name) {
  std::ostringstream out;
  out << "  MODULE = " << name << "\n";
  for (std::size_t i = 0; i < items.size(); ++i) {
    const TestItem& item = items[i];
    out << "BEGIN_ITEM\nITEM_NAME = " << item.name << "\nITEM_ID = " << item.id
        << "\nITEM_TYPE = " << item.type << "\nITEM_LENGTH = " << item.length
        << "\nITEM_CONTENT = " << item.content << "\nITEM_PARENT = " << item.parent
        << "\nITEM_INDEX = " << (item.index == -2 ? static_cast<int>(i) : item.index) << "\n";
    if (item.size > 0) out << "ITEM_SIZE = " << item.size << "\n";
    out << "END_ITEM\n";
  }
  return out.str();
}

std::string ProjectFile(const std::vector<std::string>& modules) {
  std::string text = "PROJECT = p\n";
  for (const std::string& module : modules) text += "MODULE = " + module + "\n";
  return text;
}

std::unique_ptr<CFileParser> ParserOf(std::map<std::string, std::string> files) {
  return std::make_unique<CFileParser>(
      [files = std::move(files)](const std::string& path) -> std::unique_ptr<std::istream> {
        const auto found = files.find(path);
        if (found == files.end()) return nullptr;
        return std::make_unique<std::istringstream>(found->second);
      });
}

std::unique_ptr<CFileParser> Load(const std::vector<std::vector<TestItem>>& modules) {
  std::map<std::string, std::string> files;
  std::vector<std::string> names;
  for (const auto& items : modules) {
    names.push_back("m" + std::to_string(names.size()));
    files["d\\" + names.back()] = ModuleFile(items, names.back());
  }
  files["d\\p"] = ProjectFile(names);
  auto parser = ParserOf(std::move(files));
  return parser->LoadProject("d\\p") ? std::move(parser) : nullptr;
}

CaughtMessages::CaughtMessages() {
  platform::SetMessageBox([this](const std::string& text, const std::string& caption) {
    texts_.push_back(caption + ": " + text);
  });
}

CaughtMessages::~CaughtMessages() { platform::SetMessageBox(nullptr); }

Result Generate(CFileParser& parser, std::vector<std::uint8_t>& image,
                const ImageContext& context) {
  image.assign(kImageCapacity, 0xEE);
  std::uint32_t length = 77;
  const Result result = GenerateNvBianryDataBlockInMemory(&parser, context, image.data(), &length);
  if (Succeeded(result)) {
    image.resize(length);
  } else {
    EXPECT_EQ(std::count(image.begin(), image.end(), 0xEE), kImageCapacity);
    EXPECT_EQ(length, 77U);
  }
  return result;
}

std::string Content(CFileParser& parser, std::string_view path) {
  std::string content;
  return parser.GetItemContent(0, path, &content) ? content : "?";
}

}  // namespace merovane::nvproject::testing
