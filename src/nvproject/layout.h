// Gives every item its place: members in their top-level item, top-level items one after another.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "nvproject/item_store.h"

namespace merovane::nvproject {

struct TopLevelItem {
  std::uint32_t item = kNoItem;
  std::uint32_t module = 0;
  // Of its data, as if each item's record stood after the one before, the first at the start. In
  // the image a record without data takes no room, and DSP code stands ahead of all: the places
  // differ then.
  std::uint32_t offset = 0;
  std::uint32_t length = 0;  // of its data
};

class Layout {
 public:
  // Lays all items out. Offsets and lengths in the store are overwritten. A structure's alignment
  // starts from the last run's, so that another run can give it another place.
  void Run(ItemStore& items);

  // Those that the last run found, in image order.
  std::span<const TopLevelItem> TopLevel() const { return topLevel_; }

 private:
  struct OpenStructure {
    std::uint32_t position;  // in the module
    std::uint32_t alignment;
    Item record;  // as it was opened: a member of the same index takes its place meanwhile
  };

  struct Placed {
    std::uint32_t next;    // the position after the last member
    std::uint32_t length;  // of the data
  };

  // Each lays out the item at the position and all that belongs to it.
  Placed PlaceStructure(ItemStore& items, const ItemStore::Module& module, std::uint32_t position);
  static Placed PlaceArray(ItemStore& items, const ItemStore::Module& module,
                           std::uint32_t position);

  std::vector<TopLevelItem> topLevel_;
  std::vector<OpenStructure> open_;
};

}  // namespace merovane::nvproject
