// A few regions of byte-addressed memory.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <vector>

#include "wire/wire.h"

namespace handset {

class MemoryMap {
 public:
  struct Region {
    std::uint32_t start;
    std::uint32_t bytes;
    bool writable;
  };

  explicit MemoryMap(std::initializer_list<Region> regions);

  // Writable regions hold zeros, the others a pattern that tells the address.
  void Reset();
  // Nothing when the range is not wholly inside one region, or not aligned to the access width
  // (1, 2 or 4), or is not writable.
  std::optional<Bytes> Read(std::uint32_t address, std::uint32_t width, std::uint32_t count) const;
  bool Write(std::uint32_t address, std::uint32_t width, std::span<const std::uint8_t> bytes);

 private:
  struct Block {
    Region region;
    Bytes content;
  };

  const Block* Find(std::uint32_t address, std::uint32_t width, std::uint64_t bytes) const;

  std::vector<Block> blocks_;
};

}  // namespace handset
