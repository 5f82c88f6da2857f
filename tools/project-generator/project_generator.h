// Makes NV projects as handsets have them: calibration and production parameters, and
// any number of further modules with scalars, nested structures, arrays and strings. The same
// options make the same project.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "project-generator/module_builder.h"

namespace merovane::projectgen {

struct Options {
  std::size_t items = 3000;  // at least those that calibration and production need
  std::uint32_t seed = 1;
  // How the project spells its AFC structure: "areo2_…" or "aero2_…".
  bool areoSpelling = true;
  // Indices of the AGC words: "[10]" instead of "[0xa]".
  bool decimalAgcWords = false;
};

struct File {
  std::string name;
  std::string text;
};

struct Project {
  std::vector<File> files;  // the project file first
  std::vector<GeneratedItem> items;
};

Project Generate(const Options& options);

// Writes all files into the directory, which is made if need be; gives the project file's path.
// Throws when that fails.
std::filesystem::path Write(const Project& project, const std::filesystem::path& directory);

}  // namespace merovane::projectgen
