#include "platform/module.h"

#include <dlfcn.h>

#include <filesystem>
#include <string>
#include <utility>

namespace merovane::platform {
namespace {

// Of the library, or program, that this code was linked into.
std::filesystem::path OwnDirectory() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&OwnDirectory), &info) == 0 || info.dli_fname == nullptr) {
    return {};
  }
  return std::filesystem::path(info.dli_fname).parent_path();
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
