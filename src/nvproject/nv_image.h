// The records of the NV image: a header and the data of every top-level item.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "nvproject/item_store.h"
#include "nvproject/layout.h"

namespace merovane::nvproject {

enum class ByteOrder { Little, Big };

inline constexpr std::size_t kImageCapacity = 65536;

// Stores the value's low bytes, as many as `bytes` has.
void StoreValue(std::span<std::uint8_t> bytes, std::uint64_t value, ByteOrder order);

// Where the records of the top-level items stand, in their order.
class RecordPlaces {
 public:
  explicit RecordPlaces(std::uint32_t start) : record_(start) {}

  // The place of the next record, whose data has that length.
  std::uint64_t Next(std::uint32_t length) {
    record_ = End();
    length_ = length;
    return record_;
  }
  // The place behind the last record. One without data takes no room: the next is written over it.
  std::uint64_t End() const {
    if (length_ == 0) return record_;
    return (record_ + kRecordHeaderBytes + length_ + 3) / 4 * 4;
  }

 private:
  std::uint64_t record_;
  std::uint32_t length_ = 0;  // of the data
};

// Keeps the last image: where nothing but contents has changed since, only
// these are converted again.
class NvImage {
 public:
  // Builds the records of all items, which are laid out, from `start` on. False when they pass the
  // capacity.
  bool Build(ItemStore& items, std::uint32_t start, ByteOrder order);

  // The image's length. What stands before `start` is zero in Bytes().
  std::size_t Length() const { return length_; }
  // The image. A header at its very end belongs to no record of the image and can pass its length.
  std::span<const std::uint8_t> Bytes() const { return {bytes_.data(), written_}; }

 private:
  bool BuildAll(const ItemStore& items);
  // Room for `count` bytes at the place; empty when it passes the capacity.
  std::span<std::uint8_t> Reserve(std::uint64_t at, std::size_t count);
  bool AddHeader(const Item& item, std::uint64_t at);
  bool AddValue(const Item& item, std::uint32_t position, std::uint64_t at);

  std::vector<std::uint8_t> bytes_;
  // Where each item's value is in the image; 0, where the time stamp is, for items that have none.
  std::vector<std::uint16_t> valueAt_;
  std::size_t length_ = 0;
  std::size_t written_ = 0;
  std::uint64_t revision_ = 0;  // of the store that the image was built from; 0 for none
  std::uint32_t start_ = 0;
  ByteOrder order_ = ByteOrder::Big;
  bool overlaps_ = false;  // records that lie upon each other must be written in their order
};

}  // namespace merovane::nvproject
