#include <algorithm>
#include <nlohmann/json.hpp>
#include <unordered_map>

#include "merovane/open_project.h"
#include "merovane/project_tool.h"
#include "nvproject/text_rules.h"

namespace merovane::tool {
namespace {

using nvproject::Item;
using nvproject::ItemStore;

bool Contains(std::string_view path, std::string_view filter) {
  if (filter.empty()) return true;
  for (std::size_t at = 0; at + filter.size() <= path.size(); ++at) {
    if (nvproject::EqualsIgnoringCase(path.substr(at, filter.size()), filter)) return true;
  }
  return false;
}

// Texts of project files are bytes of any kind; JSON holds UTF-8.
std::string Printable(std::string_view text) {
  std::string printable(text);
  std::ranges::replace_if(
      printable, [](char c) { return static_cast<unsigned char>(c) >= 0x80 || c < ' '; }, '?');
  return printable;
}

void ShowText(const ItemStore& items, const ItemStore::Module& module, const std::string& filter,
              std::ostream& out) {
  // How deep an item of an index stands: parents come before their children.
  std::unordered_map<std::int32_t, std::size_t> depths;
  for (std::uint32_t position = 0; position < module.count; ++position) {
    const Item& item = items[module.first + position];
    const auto parent = item.IsTopLevel() ? depths.end() : depths.find(item.parent);
    const std::size_t depth = parent == depths.end() ? 0 : parent->second + 1;
    depths.emplace(item.index, depth);
    if (!Contains(item.fullPath, filter)) continue;
    // A filtered item stands alone: its path says where it belongs.
    const std::string_view name = filter.empty() ? item.name : item.fullPath;
    out << std::string(filter.empty() ? 2 + 2 * std::min<std::size_t>(depth, 40) : 2, ' ')
        << Printable(name) << "  " << nvproject::TypeName(item.type);
    if (item.type == nvproject::ItemType::Array) out << "[" << item.size << "]";
    if (item.IsTopLevel()) out << "  id " << item.id;
    if (!item.content.empty()) out << "  = " << Printable(item.content);
    out << '\n';
  }
}

nlohmann::json ModuleJson(const ItemStore& items, const ItemStore::Module& module,
                          const std::string& filter) {
  auto list = nlohmann::json::array();
  for (std::uint32_t position = 0; position < module.count; ++position) {
    const Item& item = items[module.first + position];
    if (!Contains(item.fullPath, filter)) continue;
    list.push_back({{"path", Printable(item.fullPath)},
                    {"type", nvproject::TypeName(item.type)},
                    {"id", item.id},
                    {"size", item.size},
                    {"length", item.length},
                    {"content", Printable(item.content)}});
  }
  return list;
}

}  // namespace

int Show(const std::string& project, const std::string& filter, bool json, std::ostream& out) {
  const auto parser = OpenProject(project);
  const ItemStore& items = parser->Items();
  auto modules = nlohmann::json::array();
  for (std::size_t number = 0; number < parser->Modules().size(); ++number) {
    const auto& record = parser->Modules()[number];
    const auto& module = items.Modules()[number];
    if (json) {
      modules.push_back({{"name", Printable(record.name)},
                         {"path", Printable(record.path)},
                         {"items", ModuleJson(items, module, filter)}});
      continue;
    }
    out << "module " << Printable(record.name) << "  (" << record.path << ", " << module.count
        << " items)\n";
    ShowText(items, module, filter, out);
  }
  if (json) {
    const nlohmann::json whole = {{"project", Printable(parser->Project().name)},
                                  {"target", Printable(parser->Project().target)},
                                  {"modules", std::move(modules)}};
    out << whole.dump(2) << '\n';
  }
  return kOk;
}

}  // namespace merovane::tool
