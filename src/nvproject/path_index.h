// Finds items by their full path: for every path, the first item that bears it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "nvproject/item_list.h"

namespace merovane::nvproject {

class PathIndex {
 public:
  void Build(const ItemList& items);

  // The position of the first item whose full path equals the wanted one, letter case ignored;
  // kNoItem when there is none. `items` are those that the index was built from.
  std::uint32_t Find(const ItemList& items, std::string_view path) const;

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t item = kNoItem;
  };

  // The slot that holds the path, or the free one where it belongs.
  std::size_t Probe(const ItemList& items, std::string_view path, std::uint32_t hash) const;

  std::vector<Slot> slots_;  // open addressing; the size is a power of two
};

}  // namespace merovane::nvproject
