#include "merovane/open_project.h"

#include "merovane/project_tool.h"
#include "nvproject/text_rules.h"

namespace merovane::tool {

std::string WithDirectory(const std::string& path) {
  return path.find_first_of(nvproject::kSeparators) == std::string::npos ? "./" + path : path;
}

std::unique_ptr<nvproject::CFileParser> OpenProject(const std::string& path) {
  auto project = std::make_unique<nvproject::CFileParser>();
  if (project->LoadProject(WithDirectory(path))) return project;
  // What ended the reading was found last.
  throw Trouble(project->Problems().empty() ? path + ": cannot be read"
                                            : TextOf(project->Problems().back()));
}

std::string TextOf(const nvproject::Problem& problem) {
  const std::string line = problem.line == 0 ? "" : ":" + std::to_string(problem.line);
  return problem.file + line + ": " + problem.text;
}

}  // namespace merovane::tool
