// The text of project and module files, with the "\r\n" line ends that they have on every system.
#pragma once

#include <span>
#include <string>

#include "nvproject/item_store.h"

namespace merovane::nvproject {

// The file of a new project. It names no module and is not one that can be read back.
std::string NewProjectText(const ProjectRecord& project);

// The file that projects are read from.
std::string ProjectText(const ProjectRecord& project, std::span<const ModuleRecord> modules);

// The module of that number, whose record is given.
std::string ModuleText(const ModuleRecord& module, const ItemStore& items, std::size_t number);

}  // namespace merovane::nvproject
