#include "nvproject/live_bytes.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

std::atomic<std::size_t> liveBytes{0};

// Every block carries its size ahead of it.
constexpr std::size_t kHeader = alignof(std::max_align_t);

}  // namespace

void* operator new(std::size_t size) {
  auto* const block = static_cast<char*>(std::malloc(size + kHeader));
  if (block == nullptr) throw std::bad_alloc();
  std::memcpy(block, &size, sizeof(size));
  liveBytes += size;
  return block + kHeader;
}

void operator delete(void* pointer) noexcept {
  if (pointer == nullptr) return;
  char* const block = static_cast<char*>(pointer) - kHeader;
  std::size_t size;
  std::memcpy(&size, block, sizeof(size));
  liveBytes -= size;
  std::free(block);
}

void operator delete(void* pointer, std::size_t) noexcept { operator delete(pointer); }

namespace merovane::bench {

std::size_t LiveBytes() { return liveBytes; }

}  // namespace merovane::bench
