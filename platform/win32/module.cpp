// Libraries by the system loader.
#include "platform/module.h"

#include <string>
#include <utility>

#include "platform/files.h"
#include "platform/win32/windows_api.h"

namespace merovane::platform {
namespace {

// Of the library, or program, that this code was linked into.
std::filesystem::path OwnDirectory() {
  HMODULE self = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&OwnDirectory), &self);
  return ModulePath(self).parent_path();
}

// A file that is no library must fail, not show a box that a station waits behind.
class NoErrorBoxes {
 public:
  NoErrorBoxes() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before_); }
  ~NoErrorBoxes() { SetThreadErrorMode(before_, nullptr); }
  NoErrorBoxes(const NoErrorBoxes&) = delete;
  NoErrorBoxes& operator=(const NoErrorBoxes&) = delete;

 private:
  DWORD before_ = 0;
};

}  // namespace

bool Module::Load(std::string_view name) {
  Free();
  const NoErrorBoxes quiet;
  const std::filesystem::path file = PathFromText(std::string(name) + ".dll");
  // Looks for what the library itself needs in that directory too.
  handle_ = LoadLibraryExW((OwnDirectory() / file).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (handle_ == nullptr) handle_ = LoadLibraryW(file.c_str());
  return IsLoaded();
}

void* Module::Find(const char* function) const {
  if (!IsLoaded()) return nullptr;
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), function));
}

void Module::Free() {
  if (void* handle = std::exchange(handle_, nullptr)) FreeLibrary(static_cast<HMODULE>(handle));
}

}  // namespace merovane::platform
