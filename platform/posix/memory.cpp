// Memory by the list of mappings that the kernel keeps.
#include "platform/memory.h"

#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <memory>

namespace merovane::platform {
namespace {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

bool IsWritable(const void* address, std::size_t bytes) {
  auto at = reinterpret_cast<std::uintptr_t>(address);
  const std::uintptr_t end = at + bytes;
  if (end < at) return false;
  const std::unique_ptr<std::FILE, FileCloser> maps(std::fopen("/proc/self/maps", "r"));
  if (!maps) return true;
  // Lines in the order of their addresses: "start-end rwxp …".
  std::uintptr_t first = 0;
  std::uintptr_t last = 0;
  char write = 0;
  while (std::fscanf(maps.get(), "%" SCNxPTR "-%" SCNxPTR " %*c%c%*[^\n]", &first, &last, &write) ==
         3) {
    if (last <= at) continue;
    if (first > at || write != 'w') break;
    at = last;
    if (at >= end) return true;
  }
  return at >= end;
}

}  // namespace merovane::platform
