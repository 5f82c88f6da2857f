// Takes arbitrary text for a project with its modules, and does to it all that can be done.
#pragma once

#include <array>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "declared/nv_project.h"
#include "nvproject/project_text.h"

namespace merovane::nvproject::fuzzing {

// Files are parted by lines "%%": the project first, then the modules, whose names end in their
// number from 0 on.
inline std::vector<std::string> Split(std::string_view text) {
  constexpr std::string_view kMark = "%%\n";
  std::vector<std::string> parts;
  for (std::size_t mark = text.find(kMark); mark != std::string_view::npos;
       mark = text.find(kMark)) {
    parts.emplace_back(text.substr(0, mark));
    text.remove_prefix(mark + kMark.size());
  }
  parts.emplace_back(text);
  return parts;
}

inline void RunProjectInput(std::string_view input) {
  const std::vector<std::string> parts = Split(input);
  // A project may name a module any number of times; that is its size, and not of interest here.
  int opened = 0;
  CFileParser parser([&](const std::string& path) -> std::unique_ptr<std::istream> {
    std::size_t part = 0;
    if (path != "d\\p") part = 1 + static_cast<std::size_t>(path.back() - '0');
    if (part >= parts.size() || ++opened > 8) return nullptr;
    return std::make_unique<std::istringstream>(parts[part]);
  });
  parser.LoadProject("d\\p");

  const ItemStore& items = parser.Items();
  const std::uint32_t count = items.Size();
  std::vector<std::uint8_t> image(kImageCapacity);
  std::uint32_t length = 0;
  std::array<std::uint8_t, 64> block{};
  for (std::uint32_t i = 0; i < count && i < 64; ++i) {
    const std::string path(items[count / 64 * i].fullPath);
    std::string content;
    parser.GetItemContent(0, path, &content);
    parser.SetItemContent(0, path, content + "1");
    parser.ItemOffset(path);
    parser.ConvertBlock(path, block);
    const ImageContext context{i % 2 == 0 ? ByteOrder::Big() : ByteOrder::Little(), i};
    if (i < 4) GenerateNvBianryDataBlockInMemory(&parser, context, image.data(), &length);
  }
  std::array<std::uint16_t, 91> words{};
  GetNvValue_Agc(&parser, words.data(), words.data(), words.data(), 3);
  SetNvValue_Agc(&parser, words.data(), 1, words.data(), 3);
  GenerateNvBianryDataBlockInMemory(&parser, {}, image.data(), &length);
  ProjectText(parser.Project(), parser.Modules());
  for (std::size_t i = 0; i < parser.Modules().size(); ++i) {
    ModuleText(parser.Modules()[i], items, i);
  }
}

}  // namespace merovane::nvproject::fuzzing
