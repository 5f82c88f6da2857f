#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <vector>

#include "wire/wire.h"

namespace handset {

// A few regions of byte-addressed memory.
class MemoryMap {
 public:
  struct Region {
    uint32_t start;
    uint32_t bytes;
    bool writable;
  };

  explicit MemoryMap(std::initializer_list<Region> regions);

  // Writable regions hold zeros, the others a pattern that tells the address.
  void Reset();
  // Nothing when the range is not wholly inside one region, or not aligned to the access width
  // (1, 2 or 4), or is not writable.
  std::optional<Bytes> Read(uint32_t address, uint32_t width, uint32_t count) const;
  bool Write(uint32_t address, uint32_t width, std::span<const uint8_t> bytes);

 private:
  struct Block {
    Region region;
    Bytes content;
  };

  const Block* Find(uint32_t address, uint32_t width, uint64_t bytes) const;

  std::vector<Block> blocks_;
};

}  // namespace handset
