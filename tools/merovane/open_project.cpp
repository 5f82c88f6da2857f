#include "merovane/open_project.h"

#include "merovane/project_tool.h"
#include "nvproject/key_line.h"
#include "nvproject/line_reader.h"
#include "nvproject/project_path.h"

namespace merovane::tool {

std::string WithDirectory(const std::string& path) {
  return path.find_first_of(nvproject::kSeparators) == std::string::npos ? "./" + path : path;
}

std::vector<ModuleLine> ModulesNamedBy(const std::string& project) {
  const std::string path = WithDirectory(project);
  auto stream = nvproject::OpenRegularFile(path);
  if (!stream) throw Trouble(project + ": cannot be read");
  std::vector<ModuleLine> modules;
  nvproject::LineReader lines(std::move(stream));
  std::string_view text;
  while (lines.Next(text)) {
    const nvproject::KeyLine line(text);
    if (!line.HasKey("MODULE")) continue;
    const auto value = line.ValueOf("MODULE");
    if (!value) continue;
    const auto module = nvproject::JoinPath(path, nvproject::FirstWord(*value));
    modules.push_back({module.value_or(""), lines.LineNumber()});
  }
  return modules;
}

std::unique_ptr<nvproject::CFileParser> OpenProject(const std::string& path) {
  auto project = std::make_unique<nvproject::CFileParser>();
  if (project->LoadProject(WithDirectory(path))) return project;
  const auto modules = ModulesNamedBy(path);
  if (modules.empty()) throw Trouble(path + ": names no module");
  for (const ModuleLine& module : modules) {
    if (!nvproject::OpenRegularFile(module.path)) {
      throw Trouble(path + ":" + std::to_string(module.line) + ": the module " + module.path +
                    " cannot be read");
    }
  }
  throw Trouble(path + ": cannot be read");
}

}  // namespace merovane::tool
