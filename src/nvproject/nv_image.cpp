#include "nvproject/nv_image.h"

#include <algorithm>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {
namespace {

constexpr std::uint16_t kDspCodeId = 4;

void StoreHeader(std::span<std::uint8_t> header, std::uint32_t id, std::uint32_t length,
                 ByteOrder order) {
  order.PutU16(header, 0, static_cast<std::uint16_t>(id));
  order.PutU16(header, 2, static_cast<std::uint16_t>(length));
}

// As many of the value's low bytes as `bytes` has: those of a scalar.
void StoreValue(std::span<std::uint8_t> bytes, std::uint64_t value, ByteOrder order) {
  if (bytes.size() == 1) {
    bytes[0] = static_cast<std::uint8_t>(value);
  } else if (bytes.size() == 2) {
    order.PutU16(bytes, 0, static_cast<std::uint16_t>(value));
  } else {
    order.PutU32(bytes, 0, static_cast<std::uint32_t>(value));
  }
}

bool HasHeader(ItemType type) {
  return ScalarWidth(type) > 0 || type == ItemType::Array || type == ItemType::Struct;
}

}  // namespace

bool NvImage::Build(const ItemStore& items, const ImageContext& context, std::istream* dspCode) {
  buffer_.assign(kImageCapacity, 0);
  context.order.PutU32(buffer_, 0, context.tickCountMs);
  if (dspCode != nullptr) AddDspCode(*dspCode, context.order);
  return AddItems(items, dspCode != nullptr ? kAlternativeImageStart : kImageStart, context.order);
}

bool NvImage::AddItems(const ItemStore& items, std::uint32_t start, ByteOrder order) {
  RecordPlaces places(start);
  std::uint64_t record = start;
  for (std::uint32_t position = 0; position < items.Size(); ++position) {
    const Item& item = items[position];
    std::uint64_t valueAt = record + kRecordHeaderBytes + item.offset;
    if (item.IsTopLevel()) {
      record = places.Next(item.length);
      valueAt = record + kRecordHeaderBytes;
      if (HasHeader(item.type)) {
        const std::span<std::uint8_t> header = Room(record, kRecordHeaderBytes);
        if (header.empty()) return false;
        StoreHeader(header, item.id, item.length, order);
      }
    }
    if (const std::uint32_t width = ScalarWidth(item.type); width > 0) {
      const std::span<std::uint8_t> value = Room(valueAt, width);
      if (value.empty()) return false;
      StoreValue(value, ContentValue(item.content), order);
    }
  }
  const std::uint64_t end = places.End();
  length_ = static_cast<std::size_t>(std::min<std::uint64_t>(end, kImageCapacity));
  return end <= kImageCapacity;
}

// The 16-bit words of the code are little-endian in its file. A shorter file leaves the rest zero.
void NvImage::AddDspCode(std::istream& code, ByteOrder order) {
  StoreHeader(std::span(buffer_).subspan(kImageStart), kDspCodeId, kDspCodeBytes, order);
  const std::span<std::uint8_t> words =
      std::span(buffer_).subspan(kImageStart + kRecordHeaderBytes, kDspCodeBytes);
  code.read(reinterpret_cast<char*>(words.data()), static_cast<std::streamsize>(words.size()));
  order.SwapArray16(words);
}

std::span<std::uint8_t> NvImage::Room(std::uint64_t at, std::size_t count) {
  if (at + count > kImageCapacity) return {};
  return std::span(buffer_).subspan(static_cast<std::size_t>(at), count);
}

void ConvertBlock(ItemStore& items, std::string_view path, std::span<std::uint8_t> data) {
  const std::uint32_t first = items.FindExact(path);
  if (first == kNoItem) return;
  std::uint32_t expectedOffset = items[first].offset;
  for (std::uint32_t i = first; i < items.Size() && !data.empty(); ++i) {
    const Item& item = items[i];
    if (item.offset != expectedOffset) continue;
    const std::uint32_t width = std::max(ScalarWidth(item.type), 1U);
    if (width > data.size()) return;
    std::ranges::reverse(data.first(width));
    data = data.subspan(width);
    expectedOffset += width;
  }
}

}  // namespace merovane::nvproject
