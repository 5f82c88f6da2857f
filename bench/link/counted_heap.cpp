#include "counted_heap.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::uint64_t> allocations{0};
std::atomic<std::int64_t> heapBytes{0};

void* Allocate(std::size_t size, std::size_t alignment) noexcept {
  void* const block =
      alignment <= alignof(std::max_align_t)
          ? std::malloc(size == 0 ? 1 : size)
          : std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
  if (!block) return nullptr;
  ++allocations;
  heapBytes += static_cast<std::int64_t>(malloc_usable_size(block));
  return block;
}

void Free(void* block) noexcept {
  if (!block) return;
  heapBytes -= static_cast<std::int64_t>(malloc_usable_size(block));
  std::free(block);
}

}  // namespace

namespace bench {

std::uint64_t Allocations() { return allocations; }
std::int64_t HeapBytes() { return heapBytes; }

}  // namespace bench

void* operator new(std::size_t size) {
  void* const block = Allocate(size, 0);
  if (!block) throw std::bad_alloc();
  return block;
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size, 0); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  void* const block = Allocate(size, static_cast<std::size_t>(alignment));
  if (!block) throw std::bad_alloc();
  return block;
}
void operator delete(void* block) noexcept { Free(block); }
void operator delete(void* block, std::size_t) noexcept { Free(block); }
void operator delete(void* block, std::align_val_t) noexcept { Free(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { Free(block); }
