// Values of a project's items as numbers, by path. Each remembers where its items are, as long as
// no path moves.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "nvproject/item_store.h"

namespace merovane::nvproject {

// How an element's index is written in its path: "[12]" or "[0xc]".
enum class IndexNotation { Decimal = 0, Hexadecimal = 1 };

// An array of signed 16-bit values.
class ItemArray {
 public:
  // The elements' paths are the prefix and an index, in the notation that is tried
  // first or else in the other.
  ItemArray(std::string prefix, std::size_t count, IndexNotation first);

  // An element that the project does not have repeats the one before it; the first is then 0.
  void Read(ItemStore& items, std::span<std::int16_t> values);
  // An element that the project does not have is skipped.
  void Write(ItemStore& items, std::span<const std::int16_t> values);
  // The paths of those elements.
  std::vector<std::string> MissingPaths(ItemStore& items);

 private:
  void Locate(ItemStore& items);

  std::string prefix_;
  std::size_t count_;
  IndexNotation first_;
  std::vector<std::uint32_t> elements_;
  std::uint64_t locatedRevision_ = 0;
};

// One value.
class ItemValue {
 public:
  explicit ItemValue(std::string path) : path_(std::move(path)) {}

  // None when the project has no such item.
  std::optional<std::string_view> Read(ItemStore& items);
  // Nothing happens when the project has no such item.
  void Write(ItemStore& items, std::string_view content);

 private:
  std::uint32_t Locate(ItemStore& items);

  std::string path_;
  std::uint32_t item_ = kNoItem;
  std::uint64_t locatedRevision_ = 0;
};

}  // namespace merovane::nvproject
