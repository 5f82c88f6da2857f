#include "link/byte_order.h"

#include <atomic>
#include <bit>
#include <cstring>

namespace merovane {
namespace {

static_assert(std::endian::native == std::endian::little, "stations are little-endian machines");

std::atomic<bool> bigEndianHandset{true};

template <typename T>
void Store(std::span<std::uint8_t> payload, std::size_t offset, T value) {
  std::memcpy(payload.subspan(offset, sizeof(T)).data(), &value, sizeof(T));
}

template <typename T>
T Load(std::span<const std::uint8_t> payload, std::size_t offset) {
  T value;
  std::memcpy(&value, payload.subspan(offset, sizeof(T)).data(), sizeof(T));
  return value;
}

std::uint32_t Reverse32(std::uint32_t value) { return __builtin_bswap32(value); }

}  // namespace

void SetBigEndian(bool bigEndian) { bigEndianHandset.store(bigEndian, std::memory_order_relaxed); }

bool BigEndian() { return bigEndianHandset.load(std::memory_order_relaxed); }

std::uint16_t Swap16(std::uint16_t value) {
  return BigEndian() ? static_cast<std::uint16_t>(value << 8 | value >> 8) : value;
}

std::uint32_t Swap32(std::uint32_t value) { return BigEndian() ? Reverse32(value) : value; }

void PutU16(std::span<std::uint8_t> payload, std::size_t offset, std::uint16_t value) {
  Store(payload, offset, Swap16(value));
}

void PutU32(std::span<std::uint8_t> payload, std::size_t offset, std::uint32_t value) {
  Store(payload, offset, Swap32(value));
}

std::uint16_t GetU16(std::span<const std::uint8_t> payload, std::size_t offset) {
  return Swap16(Load<std::uint16_t>(payload, offset));
}

std::uint32_t GetU32(std::span<const std::uint8_t> payload, std::size_t offset) {
  return Swap32(Load<std::uint32_t>(payload, offset));
}

void PutU32BigEndian(std::span<std::uint8_t> payload, std::size_t offset, std::uint32_t value) {
  Store(payload, offset, Reverse32(value));
}

void SwapArray16(std::span<std::uint8_t> data) {
  for (std::size_t at = 0; at + 2 <= data.size(); at += 2)
    PutU16(data, at, Load<std::uint16_t>(data, at));
}

void SwapArray32(std::span<std::uint8_t> data) {
  for (std::size_t at = 0; at + 4 <= data.size(); at += 4)
    PutU32(data, at, Load<std::uint32_t>(data, at));
}

}  // namespace merovane
