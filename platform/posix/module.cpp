// Libraries by the dynamic loader.
#include "platform/module.h"

#include <dlfcn.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>

namespace merovane::platform {
namespace {

// Of the library, or program, that this code was linked into. The loader only knows the name that
// it was given, which may be relative to a working directory of long ago; the kernel knows the
// file.
std::filesystem::path OwnDirectory() {
  const auto self = reinterpret_cast<std::uintptr_t>(&OwnDirectory);
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    std::uintptr_t first = 0;
    std::uintptr_t end = 0;
    char dash = 0;
    std::istringstream fields(line);
    fields >> std::hex >> first >> dash >> end;
    const std::size_t path = line.find('/');
    if (self >= first && self < end && path != std::string::npos) {
      return std::filesystem::path(line.substr(path)).parent_path();
    }
  }
  return {};
}

}  // namespace

bool Module::Load(std::string_view name) {
  Free();
  const std::string file = "lib" + std::string(name) + ".so";
  const std::filesystem::path directory = OwnDirectory();
  if (!directory.empty()) handle_ = dlopen((directory / file).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle_ == nullptr) handle_ = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  return IsLoaded();
}

void* Module::Find(const char* function) const {
  return IsLoaded() ? dlsym(handle_, function) : nullptr;
}

void Module::Free() {
  if (void* handle = std::exchange(handle_, nullptr)) dlclose(handle);
}

}  // namespace merovane::platform
