// New project files, and whole projects written anew.
#include "platform/files.h"

#include <algorithm>
#include <filesystem>

#include "merovane/open_project.h"
#include "merovane/project_tool.h"
#include "nvproject/text_rules.h"

namespace merovane::tool {

int New(const std::string& project, const NewOptions& options, std::ostream& out) {
  const std::filesystem::path file = platform::PathFromText(project);
  std::error_code ignored;
  if (std::filesystem::exists(file, ignored)) throw Trouble(project + ": is there already");
  const std::string name = options.name.value_or(platform::TextFromPath(file.stem()));
  nvproject::CFileParser parser;
  if (!parser.CreateProject(name, project, options.target, "")) {
    throw Trouble(project + ": cannot be written");
  }
  out << project << ": names no module yet\n";
  return kOk;
}

int Save(const std::string& project, std::ostream& out) {
  // The file will name its modules by the paths that they were read from.
  const auto file = std::filesystem::absolute(platform::PathFromText(project));
  const auto parser = OpenProject(platform::TextFromPath(file));
  const auto isOneWord = [](const std::string& path) { return nvproject::FirstWord(path) == path; };
  for (const auto& module : parser->Modules()) {
    if (!isOneWord(module.path)) {
      throw Trouble(module.path + ": a project file cannot name a path with blanks");
    }
  }
  if (!parser->SaveProject()) throw Trouble(parser->Project().path + ": cannot be written");
  out << parser->Project().path << ": " << parser->Modules().size() << " modules\n";
  return kOk;
}

}  // namespace merovane::tool
