#pragma once

#include <memory>
#include <string>

#include "nvproject/file_parser.h"

namespace merovane::tool {

// Throws Trouble, with a text that says which file it is about.
std::unique_ptr<nvproject::CFileParser> OpenProject(const std::string& path);

// The project's own files: that of the project, then its modules in order, as far as the
// project file can be read. Missing modules are among them.
struct ModuleLine {
  std::string path;
  std::uint32_t line = 0;  // in the project file
};
std::vector<ModuleLine> ModulesNamedBy(const std::string& project);

// With a directory: the reader joins module names to it.
std::string WithDirectory(const std::string& path);

}  // namespace merovane::tool
