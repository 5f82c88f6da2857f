// Memory by what the system says of its pages.
#include "platform/memory.h"

#include <cstdint>

#include "platform/win32/windows_api.h"

namespace merovane::platform {

bool IsWritable(const void* address, std::size_t bytes) {
  constexpr DWORD kWritable =
      PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
  auto at = reinterpret_cast<std::uintptr_t>(address);
  const std::uintptr_t end = at + bytes;
  if (end < at) return false;
  while (at < end) {
    MEMORY_BASIC_INFORMATION region{};
    if (VirtualQuery(reinterpret_cast<const void*>(at), &region, sizeof region) == 0) return false;
    // A guard page of a stack becomes writable by being touched.
    if (region.State != MEM_COMMIT || (region.Protect & kWritable) == 0) return false;
    at = reinterpret_cast<std::uintptr_t>(region.BaseAddress) + region.RegionSize;
  }
  return true;
}

}  // namespace merovane::platform
