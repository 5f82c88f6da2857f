// The NV image: a time stamp, then a record for every top-level item, with a header and its data.
#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <span>
#include <string_view>
#include <vector>

#include "link/byte_order.h"
#include "nvproject/item_store.h"

namespace merovane::nvproject {

inline constexpr std::size_t kImageCapacity = 65536;

// Every record begins with the item's id and length, 16 bits each.
inline constexpr std::uint32_t kRecordHeaderBytes = 4;
// The first record stands after the time stamp, or after that and the DSP code's record.
inline constexpr std::uint32_t kImageStart = 4;
inline constexpr std::uint32_t kDspCodeBytes = 49152;
inline constexpr std::uint32_t kAlternativeImageStart =
    kImageStart + kRecordHeaderBytes + kDspCodeBytes;

// What an image takes from its surroundings.
struct ImageContext {
  ByteOrder order = ByteOrder::Big();
  std::uint32_t tickCountMs = 0;  // the image's time stamp
};

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
  // The place after the last record. One without data takes no room: the next is written over it.
  std::uint64_t End() const {
    if (length_ == 0) return record_;
    return (record_ + kRecordHeaderBytes + length_ + 3) / 4 * 4;
  }

 private:
  std::uint64_t record_;
  std::uint32_t length_ = 0;  // of the data
};

class NvImage {
 public:
  // Builds the image of all items, which are laid out, with the DSP code ahead of them if there is
  // any. False when they pass the capacity.
  bool Build(const ItemStore& items, const ImageContext& context, std::istream* dspCode = nullptr);

  std::span<const std::uint8_t> Bytes() const { return std::span(buffer_).first(length_); }
  // All of the capacity: zeros after the image, but for the header of an item without data, if the
  // image ends with one.
  std::span<const std::uint8_t> Buffer() const { return buffer_; }

 private:
  // All records, from `start` on.
  bool AddItems(const ItemStore& items, std::uint32_t start, ByteOrder order);
  void AddDspCode(std::istream& code, ByteOrder order);
  // Room for `count` bytes at the place; empty when it passes the capacity.
  std::span<std::uint8_t> Room(std::uint64_t at, std::size_t count);

  std::vector<std::uint8_t> buffer_;
  std::size_t length_ = 0;
};

// What QV_ConvertDataByDataType does to its data, which begins with the item of that path (letter
// case counts). The items are laid out. An unknown path changes nothing.
void ConvertBlock(ItemStore& items, std::string_view path, std::span<std::uint8_t> data);

}  // namespace merovane::nvproject
