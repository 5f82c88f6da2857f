#include "merovane/open_project.h"
#include "merovane/project_tool.h"

namespace merovane::tool {

int Get(const std::string& project, const std::string& path, std::ostream& out) {
  const auto parser = OpenProject(project);
  std::string content;
  if (!parser->GetItemContent(0, path, &content)) throw Trouble(path + ": no such item");
  out << content << '\n';
  return kOk;
}

int Set(const std::string& project, const std::string& path, const std::string& value,
        std::ostream& out) {
  // The file keeps one word: what the reader would not give back is refused.
  if (value.empty() || value.find_first_of(" \t\r\n\v\f") != std::string::npos) {
    throw Trouble("a value is one word");
  }
  if (value.size() > nvproject::kMaxText) throw Trouble("a value has at most 255 characters");
  const auto parser = OpenProject(project);
  const auto& items = parser->Items();
  const std::uint32_t position = parser->Items().Find(path);
  if (position == nvproject::kNoItem) throw Trouble(path + ": no such item");
  if (!Fits(items[position], value)) {
    throw Trouble(path + ": " + value + " is not a " +
                  std::string(nvproject::TypeName(items[position].type)));
  }
  parser->SetItemContent(0, path, value);
  if (items[position].content != value) {
    throw Trouble(path + ": its index names another item, so that it cannot be written");
  }
  const std::size_t module = items.ModuleNumberOf(position);
  if (parser->Changed() && !parser->SaveModule(module)) {
    throw Trouble(parser->Modules()[module].path + ": cannot be written");
  }
  out << items[position].fullPath << " = " << value << '\n';
  return kOk;
}

}  // namespace merovane::tool
