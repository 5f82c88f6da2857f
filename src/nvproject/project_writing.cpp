// Saving a project and its modules.
#include "nvproject/file_parser.h"
#include "nvproject/project_text.h"
#include "nvproject/protected_file.h"

namespace merovane::nvproject {

bool CFileParser::CreateProject(std::string_view name, std::string_view path,
                                std::string_view target, std::string_view description) {
  if (projectStream_ != nullptr) return false;
  project_.name = name.substr(0, kMaxName);
  project_.path = path.substr(0, kMaxFilePath);
  project_.target = target.substr(0, kMaxFilePath);
  project_.description = description.substr(0, kMaxText);
  if (!WriteProtectedFile(project_.path, WithFileLineEnds(NewProjectText(project_)))) return false;
  savedRevision_ = items_.ContentRevision();
  return true;
}

bool CFileParser::SaveProject() {
  // A project file that reading has left open is closed now.
  projectStream_.reset();
  const std::string text = WithFileLineEnds(ProjectText(project_, modules_));
  if (!WriteProtectedFile(project_.path, text)) return false;
  for (std::size_t module = 0; module < modules_.size(); ++module) SaveModule(module);
  savedRevision_ = items_.ContentRevision();
  return true;
}

bool CFileParser::SaveModule(std::size_t module) {
  if (module >= modules_.size()) return false;
  const ModuleRecord& record = modules_[module];
  return WriteProtectedFile(record.path, WithFileLineEnds(ModuleText(record, items_, module)));
}

}  // namespace merovane::nvproject
