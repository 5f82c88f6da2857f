#include <algorithm>
#include <array>
#include <unordered_map>
#include <vector>

#include "merovane/open_project.h"
#include "merovane/project_tool.h"
#include "nvproject/key_line.h"
#include "nvproject/line_reader.h"
#include "platform/ascii.h"

namespace merovane::tool {
namespace {

using nvproject::Item;
using nvproject::ItemType;

class Findings {
 public:
  explicit Findings(std::ostream& out) : out_(out) {}

  void Add(const std::string& file, std::uint32_t line, const std::string& text) {
    out_ << file;
    if (line != 0) out_ << ':' << line;
    out_ << ": " << text << '\n';
    ++count_;
  }
  std::size_t Count() const { return count_; }

 private:
  std::ostream& out_;
  std::size_t count_ = 0;
};

// Where a text is longer than its field, and where each item ends: in the order of its items.
std::vector<std::uint32_t> CheckLines(const std::string& path, Findings& findings) {
  struct Field {
    std::string_view key;
    std::size_t longest;
  };
  constexpr std::array kFields = {
      Field{"ITEM_NAME", nvproject::kMaxName}, Field{"ITEM_CONTENT", nvproject::kMaxText},
      Field{"MODULE", nvproject::kMaxName}, Field{"DESCRIPTION", nvproject::kMaxText}};
  std::vector<std::uint32_t> ends;
  bool inItem = false;
  std::uint32_t begun = 0;
  std::uint32_t last = 0;
  nvproject::LineReader lines(nvproject::OpenRegularFile(path));
  std::string_view text;
  while (lines.Next(text)) {
    const std::uint32_t number = lines.LineNumber();
    if (number == last) findings.Add(path, number, "the line is cut: its rest is read as another");
    last = number;
    const nvproject::KeyLine line(text);
    if (line.HasKey("BEGIN_ITEM")) {
      if (inItem) findings.Add(path, begun, "the item has no END_ITEM");
      inItem = true;
      begun = number;
    } else if (line.HasKey("END_ITEM")) {
      inItem = false;
      ends.push_back(begun != 0 ? begun : number);
    }
    for (const Field& field : kFields) {
      if (!line.HasKey(field.key)) continue;
      const auto value = line.ValueOf(field.key);
      if (!value) {
        findings.Add(path, number, std::string(field.key) + " has no \"=\"");
      } else if (nvproject::FirstWord(*value).size() > field.longest) {
        findings.Add(
            path, number,
            std::string(field.key) + " is cut to " + std::to_string(field.longest) + " characters");
      }
    }
  }
  if (inItem) findings.Add(path, begun, "the item has no END_ITEM");
  return ends;
}

void CheckItems(const nvproject::ItemStore& items, const nvproject::ItemStore::Module& module,
                const std::string& path, const std::vector<std::uint32_t>& lines,
                std::unordered_map<std::string, std::string>& paths, Findings& findings) {
  std::unordered_map<std::int32_t, ItemType> earlier;
  for (std::uint32_t position = 0; position < module.count; ++position) {
    const Item& item = items[module.first + position];
    const std::uint32_t line = position < lines.size() ? lines[position] : 0;
    const std::string name(item.name);
    if (!item.IsTopLevel() && !earlier.contains(item.parent)) {
      findings.Add(path, line,
                   name + ": its parent " + std::to_string(item.parent) + " does not precede it");
    }
    if (item.index != static_cast<std::int64_t>(position)) {
      findings.Add(path, line,
                   name + ": its index " + std::to_string(item.index) + " is not its position " +
                       std::to_string(position));
    }
    if (item.type == ItemType::Array) {
      std::uint64_t elements = 0;
      for (std::uint32_t next = position + 1; next < module.count && elements < item.size &&
                                              items[module.first + next].parent == item.index;
           ++next) {
        ++elements;
      }
      if (elements < item.size) {
        findings.Add(path, line,
                     name + ": " + std::to_string(elements) + " of its " +
                         std::to_string(item.size) + " elements follow it");
      }
    }
    if (item.fullPath.size() == nvproject::kMaxFullPath) {
      findings.Add(path, line, name + ": its full path is cut");
    }
    std::string folded(item.fullPath);
    std::ranges::transform(folded, folded.begin(), platform::ToLower);
    const auto [known, isNew] = paths.emplace(folded, path + ":" + std::to_string(line));
    if (!isNew) {
      findings.Add(path, line,
                   std::string(item.fullPath) + ": " + known->second +
                       " has the same path and answers for it");
    }
    earlier.emplace(item.index, item.type);
  }
}

}  // namespace

int Check(const std::string& project, std::ostream& out) {
  Findings findings(out);
  bool readable = true;
  const auto modules = ModulesNamedBy(project);
  if (modules.empty()) findings.Add(project, 0, "names no module");
  for (const ModuleLine& module : modules) {
    if (nvproject::OpenRegularFile(module.path)) continue;
    findings.Add(project, module.line, "the module " + module.path + " cannot be read");
    readable = false;
  }
  if (readable && !modules.empty()) {
    const auto parser = OpenProject(project);
    std::unordered_map<std::string, std::string> paths;
    for (std::size_t number = 0; number < parser->Modules().size(); ++number) {
      const std::string& path = parser->Modules()[number].path;
      const auto lines = CheckLines(path, findings);
      CheckItems(parser->Items(), parser->Items().Modules()[number], path, lines, paths, findings);
    }
    std::vector<std::uint8_t> image(nvproject::kImageCapacity);
    std::uint32_t length = 0;
    if (!Succeeded(parser->GenerateImage(std::span<std::uint8_t, nvproject::kImageCapacity>(image),
                                         length, {}))) {
      findings.Add(project, 0, "its image would be larger than 65536 bytes");
    }
  }
  if (findings.Count() == 0) out << project << ": nothing wrong\n";
  return findings.Count() == 0 ? kOk : kDifferent;
}

}  // namespace merovane::tool
