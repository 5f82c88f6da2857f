#include <vector>

#include "merovane/open_project.h"
#include "merovane/project_tool.h"
#include "nvproject/text_rules.h"

namespace merovane::tool {
namespace {

using nvproject::CFileParser;
using nvproject::Item;
using nvproject::ItemType;
using nvproject::Problem;

// What is wrong with the items of a project that could be read.
class ItemCheck {
 public:
  explicit ItemCheck(CFileParser& parser) : parser_(parser), items_(parser.Items()) {}

  std::vector<Problem> Run() {
    for (std::uint32_t position = 0; position < items_.Size(); ++position) {
      CheckElements(position);
      CheckValue(position);
      CheckPath(position);
    }
    CheckImage();
    return std::move(found_);
  }

 private:
  const std::string& FileOf(std::uint32_t position) const {
    return parser_.Modules()[items_.ModuleNumberOf(position)].path;
  }
  void Add(std::uint32_t position, const std::string& text) {
    found_.push_back({FileOf(position), items_[position].line,
                      std::string(items_[position].fullPath) + ": " + text});
  }

  void CheckElements(std::uint32_t position) {
    const Item& item = items_[position];
    if (item.type != ItemType::Array) return;
    const auto& module = items_.Modules()[items_.ModuleNumberOf(position)];
    std::uint64_t elements = 0;
    for (std::uint32_t next = position + 1;
         next < module.first + module.count && elements < item.size &&
         items_[next].parent == item.index;
         ++next) {
      ++elements;
    }
    if (elements < item.size) {
      Add(position, std::to_string(elements) + " of its " + std::to_string(item.size) +
                        " elements follow it");
    }
  }

  void CheckValue(std::uint32_t position) {
    const Item& item = items_[position];
    if (!item.content.empty() && !Fits(item, item.content)) {
      Add(position, item.content + " is not a " + std::string(nvproject::TypeName(item.type)));
    }
  }

  void CheckPath(std::uint32_t position) {
    const std::uint32_t first = items_.Find(items_[position].fullPath);
    if (first == position) return;
    Add(position, FileOf(first) + ":" + std::to_string(items_[first].line) +
                      " has the same path and answers for it");
  }

  void CheckImage() {
    parser_.LayoutItems();
    for (const nvproject::TopLevelItem& top : parser_.TopLevelItems()) {
      if (top.length == 0 && items_[top.item].type != ItemType::String) {
        Add(top.item, "it has no data, so that the image has no record of it");
      }
    }
    std::vector<std::uint8_t> image(nvproject::kImageCapacity);
    std::uint32_t length = 0;
    if (!Succeeded(parser_.GenerateImage(std::span<std::uint8_t, nvproject::kImageCapacity>(image),
                                         length, {}))) {
      found_.push_back({parser_.Project().path, 0, "its image would be larger than 65536 bytes"});
    }
  }

  CFileParser& parser_;
  nvproject::ItemStore& items_;
  std::vector<Problem> found_;
};

}  // namespace

bool Fits(const Item& item, const std::string& value) {
  const std::uint32_t width = nvproject::ScalarWidth(item.type);
  return width == 0 || nvproject::IsNumberOf(value, width);
}

int Check(const std::string& project, std::ostream& out) {
  CFileParser parser;
  const bool loaded = parser.LoadProject(WithDirectory(project));
  std::vector<Problem> problems(parser.Problems().begin(), parser.Problems().end());
  if (!loaded && problems.empty()) throw Trouble(project + ": cannot be read");
  if (loaded) {
    for (Problem& problem : ItemCheck(parser).Run()) problems.push_back(std::move(problem));
  }
  for (const Problem& problem : problems) out << TextOf(problem) << '\n';
  if (problems.empty()) out << project << ": nothing wrong\n";
  return problems.empty() ? kOk : kDifferent;
}

}  // namespace merovane::tool
