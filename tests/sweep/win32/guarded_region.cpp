#include "sweep/guarded_region.h"

#include <windows.h>

#include <new>

namespace merovane::sweep {
namespace {

constexpr std::size_t kPage = 4096;

}  // namespace

GuardedRegion::GuardedRegion()
    : start_(static_cast<std::byte*>(
          VirtualAlloc(nullptr, kBytes + kPage, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE))) {
  if (start_ == nullptr) throw std::bad_alloc();
  DWORD before = 0;
  VirtualProtect(start_ + kBytes, kPage, PAGE_NOACCESS, &before);
}

GuardedRegion::~GuardedRegion() { VirtualFree(start_, 0, MEM_RELEASE); }

void SetEnvironment(const char* name, const char* value) { SetEnvironmentVariableA(name, value); }

}  // namespace merovane::sweep
