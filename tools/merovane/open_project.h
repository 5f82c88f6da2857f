// Opens projects as the library does, with its reasons as texts.
#pragma once

#include <memory>
#include <string>

#include "nvproject/file_parser.h"

namespace merovane::tool {

// With a directory: the reader joins module names to it.
std::string WithDirectory(const std::string& path);

// Throws Trouble, with a text that says which file it is about.
std::unique_ptr<nvproject::CFileParser> OpenProject(const std::string& path);

// "file:line: text".
std::string TextOf(const nvproject::Problem& problem);

}  // namespace merovane::tool
