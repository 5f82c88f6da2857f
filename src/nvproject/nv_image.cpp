#include "nvproject/nv_image.h"

#include <algorithm>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {

void StoreValue(std::span<std::uint8_t> bytes, std::uint64_t value, ByteOrder order) {
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[order == ByteOrder::Little ? i : bytes.size() - 1 - i] =
        static_cast<std::uint8_t>(value >> (8 * i));
  }
}

bool NvImage::Build(ItemStore& items, std::uint32_t start, ByteOrder order) {
  const ContentChanges changes = items.TakeContentChanges();
  if (revision_ == items.StructureRevision() && start_ == start && order_ == order &&
      !changes.tooMany && (changes.items.empty() || !overlaps_)) {
    for (const std::uint32_t position : changes.items) {
      const std::size_t at = valueAt_[position];
      if (at == 0) continue;
      StoreValue(std::span(bytes_).subspan(at, ScalarWidth(items[position].type)),
                 ContentValue(items[position].content), order);
    }
    return true;
  }
  start_ = start;
  order_ = order;
  revision_ = BuildAll(items) ? items.StructureRevision() : 0;
  return revision_ != 0;
}

bool NvImage::BuildAll(const ItemStore& items) {
  bytes_.assign(kImageCapacity, 0);
  valueAt_.assign(items.Items().Size(), 0);
  written_ = 0;
  overlaps_ = false;
  RecordPlaces places(start_);
  std::uint64_t record = start_;
  for (std::uint32_t position = 0; position < items.Items().Size(); ++position) {
    const Item& item = items[position];
    std::uint64_t valueAt = record + kRecordHeaderBytes + item.offset;
    if (item.IsTopLevel()) {
      record = places.Next(item.length);
      valueAt = record + kRecordHeaderBytes;
      if (!AddHeader(item, record)) return false;
    }
    if (ScalarWidth(item.type) > 0 && !AddValue(item, position, valueAt)) return false;
  }
  const std::uint64_t end = places.End();
  if (end > kImageCapacity) return false;
  length_ = static_cast<std::size_t>(end);
  written_ = std::max(written_, length_);
  return true;
}

std::span<std::uint8_t> NvImage::Reserve(std::uint64_t at, std::size_t count) {
  if (at + count > kImageCapacity) return {};
  overlaps_ = overlaps_ || at < written_;
  written_ = std::max(written_, static_cast<std::size_t>(at) + count);
  return std::span(bytes_).subspan(static_cast<std::size_t>(at), count);
}

bool NvImage::AddHeader(const Item& item, std::uint64_t at) {
  const bool hasData =
      ScalarWidth(item.type) > 0 || item.type == ItemType::Array || item.type == ItemType::Struct;
  if (!hasData) return true;
  const std::span<std::uint8_t> header = Reserve(at, kRecordHeaderBytes);
  if (header.empty()) return false;
  StoreValue(header.first(2), item.id, order_);
  StoreValue(header.last(2), item.length, order_);
  return true;
}

bool NvImage::AddValue(const Item& item, std::uint32_t position, std::uint64_t at) {
  const std::span<std::uint8_t> value = Reserve(at, ScalarWidth(item.type));
  if (value.empty()) return false;
  StoreValue(value, ContentValue(item.content), order_);
  valueAt_[position] = static_cast<std::uint16_t>(at);
  return true;
}

}  // namespace merovane::nvproject
