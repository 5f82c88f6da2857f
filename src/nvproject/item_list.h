// A list of items that grows without moving them: projects can be large, and a
// list that doubles touches twice the memory.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "nvproject/item.h"

namespace merovane::nvproject {

class ItemList {
 public:
  std::uint32_t Size() const { return size_; }
  const Item& operator[](std::uint32_t at) const { return blocks_[at / kBlock][at % kBlock]; }
  Item& operator[](std::uint32_t at) { return blocks_[at / kBlock][at % kBlock]; }

  void Append(Item item) {
    if (size_ % kBlock == 0) {
      blocks_.emplace_back();
      blocks_.back().reserve(kBlock);
    }
    blocks_.back().push_back(std::move(item));
    ++size_;
  }

 private:
  static constexpr std::uint32_t kBlock = 256;

  std::vector<std::vector<Item>> blocks_;
  std::uint32_t size_ = 0;
};

}  // namespace merovane::nvproject
