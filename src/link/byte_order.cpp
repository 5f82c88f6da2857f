#include "link/byte_order.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace merovane {
namespace {

static_assert(std::endian::native == std::endian::little, "stations are little-endian machines");

template <typename T>
void Store(std::span<std::uint8_t> data, std::size_t offset, T value) {
  std::memcpy(data.subspan(offset, sizeof(T)).data(), &value, sizeof(T));
}

template <typename T>
T Load(std::span<const std::uint8_t> data, std::size_t offset) {
  T value = 0;
  if (offset < data.size()) {
    std::memcpy(&value, data.data() + offset, std::min(sizeof(T), data.size() - offset));
  }
  return value;
}

}  // namespace

void ByteOrder::PutU16(std::span<std::uint8_t> data, std::size_t offset,
                       std::uint16_t value) const {
  Store(data, offset, Swap16(value));
}

void ByteOrder::PutU32(std::span<std::uint8_t> data, std::size_t offset,
                       std::uint32_t value) const {
  Store(data, offset, Swap32(value));
}

std::uint16_t ByteOrder::GetU16(std::span<const std::uint8_t> data, std::size_t offset) const {
  return Swap16(Load<std::uint16_t>(data, offset));
}

std::uint32_t ByteOrder::GetU32(std::span<const std::uint8_t> data, std::size_t offset) const {
  return Swap32(Load<std::uint32_t>(data, offset));
}

void ByteOrder::SwapArray16(std::span<std::uint8_t> data) const {
  for (std::size_t at = 0; at + 2 <= data.size(); at += 2)
    PutU16(data, at, Load<std::uint16_t>(data, at));
}

void ByteOrder::SwapArray32(std::span<std::uint8_t> data) const {
  for (std::size_t at = 0; at + 4 <= data.size(); at += 4)
    PutU32(data, at, Load<std::uint32_t>(data, at));
}

void PutU32BigEndian(std::span<std::uint8_t> payload, std::size_t offset, std::uint32_t value) {
  ByteOrder::Big().PutU32(payload, offset, value);
}

}  // namespace merovane
