#include "parts/memory/memory_map.h"

#include <algorithm>

namespace handset {

MemoryMap::MemoryMap(std::initializer_list<Region> regions) {
  for (const Region& region : regions) blocks_.push_back({region, Bytes(region.bytes)});
  Reset();
}

void MemoryMap::Reset() {
  for (Block& block : blocks_) {
    for (std::uint32_t i = 0; i < block.region.bytes; ++i) {
      // Every fourth byte names the word, so that a shifted read shows.
      const std::uint32_t word = i / 4;
      block.content[i] = block.region.writable ? std::uint8_t{0}
                                               : static_cast<std::uint8_t>(word >> 8 * (3 - i % 4));
    }
  }
}

std::optional<Bytes> MemoryMap::Read(std::uint32_t address, std::uint32_t width,
                                     std::uint32_t count) const {
  const std::uint64_t bytes = std::uint64_t{width} * count;
  const Block* block = Find(address, width, bytes);
  if (block == nullptr) return std::nullopt;
  const auto first = block->content.begin() + (address - block->region.start);
  return Bytes(first, first + static_cast<std::ptrdiff_t>(bytes));
}

bool MemoryMap::Write(std::uint32_t address, std::uint32_t width,
                      std::span<const std::uint8_t> bytes) {
  const Block* found = Find(address, width, bytes.size());
  if (found == nullptr || !found->region.writable) return false;
  const auto index = static_cast<std::size_t>(found - blocks_.data());
  std::copy(bytes.begin(), bytes.end(),
            blocks_[index].content.begin() + (address - found->region.start));
  return true;
}

const MemoryMap::Block* MemoryMap::Find(std::uint32_t address, std::uint32_t width,
                                        std::uint64_t bytes) const {
  if (width == 0 || address % width != 0 || bytes == 0 || bytes % width != 0) return nullptr;
  for (const Block& block : blocks_) {
    if (address < block.region.start) continue;
    const std::uint64_t offset = address - block.region.start;
    if (offset + bytes <= block.region.bytes) return &block;
  }
  return nullptr;
}

}  // namespace handset
