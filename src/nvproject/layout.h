// Gives every item its place: members in their top-level item, top-level items in the image.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "nvproject/item_store.h"

namespace merovane::nvproject {

// Every record of the image begins with the item's id and length, 16 bits each.
inline constexpr std::uint32_t kRecordHeaderBytes = 4;
inline constexpr std::uint32_t kDspCodeBytes = 49152;

// The image begins with its time stamp; in the alternative form the DSP code's record comes
// between.
inline constexpr std::uint32_t kImageStart = 4;
inline constexpr std::uint32_t kAlternativeImageStart =
    kImageStart + kRecordHeaderBytes + kDspCodeBytes;

struct TopLevelItem {
  std::uint32_t item = kNoItem;
  std::uint32_t module = 0;
  // Of its data, each item's record behind the one before. The image is the same up to an item
  // without data: there the next record takes its place (see RecordPlaces in nv_image.h).
  std::uint32_t offset = 0;
  std::uint32_t length = 0;  // of its data
};

class Layout {
 public:
  // Lays all items out, from `start` on. Offsets and lengths in the store are overwritten. A
  // structure's alignment starts from the last run's, so a run counts as done only when another one
  // would change nothing.
  void Run(ItemStore& items, std::uint32_t start);

  // Those that the last run found, in image order.
  std::span<const TopLevelItem> TopLevel() const { return topLevel_; }

 private:
  struct OpenStructure {
    std::uint32_t position;  // in the module
    std::uint32_t alignment;
    Item record;  // as it was opened: a member of the same index takes its place meanwhile
  };

  struct Placed {
    std::uint32_t next;    // the position behind the last member
    std::uint32_t length;  // of the data
  };

  // What a run depends on.
  struct State {
    std::uint64_t structureRevision;
    std::uint64_t contentRevision;
    std::uint32_t start;

    bool operator==(const State&) const = default;
  };
  static State StateOf(const ItemStore& items, std::uint32_t start);

  // Each lays out the item at the position and all that belongs to it.
  Placed PlaceStructure(ItemStore& items, const ItemStore::Module& module, std::uint32_t position);
  Placed PlaceArray(ItemStore& items, const ItemStore::Module& module, std::uint32_t position);

  std::vector<TopLevelItem> topLevel_;
  std::vector<OpenStructure> open_;
  std::optional<State> settled_;  // the state that a run has left as it was
};

}  // namespace merovane::nvproject
