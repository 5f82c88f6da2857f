// The handset's byte order, in which 16- and 32-bit fields of frames and payloads travel.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace merovane {

class ByteOrder {
 public:
  static constexpr ByteOrder Big() { return ByteOrder(true); }
  static constexpr ByteOrder Little() { return ByteOrder(false); }
  constexpr bool IsBig() const { return big_; }
  friend constexpr bool operator==(ByteOrder, ByteOrder) = default;

  // The value as the handset holds it: with its bytes reversed when the order is big-endian.
  constexpr std::uint16_t Swap16(std::uint16_t value) const {
    return big_ ? __builtin_bswap16(value) : value;
  }
  constexpr std::uint32_t Swap32(std::uint32_t value) const {
    return big_ ? __builtin_bswap32(value) : value;
  }

  // The field must lie inside.
  void PutU16(std::span<std::uint8_t> data, std::size_t offset, std::uint16_t value) const;
  void PutU32(std::span<std::uint8_t> data, std::size_t offset, std::uint32_t value) const;
  // Bytes beyond the end read as zero.
  std::uint16_t GetU16(std::span<const std::uint8_t> data, std::size_t offset) const;
  std::uint32_t GetU32(std::span<const std::uint8_t> data, std::size_t offset) const;

  // Converts an array of fields in place; an odd rest is left as it is.
  void SwapArray16(std::span<std::uint8_t> data) const;
  void SwapArray32(std::span<std::uint8_t> data) const;

 private:
  constexpr explicit ByteOrder(bool big) : big_(big) {}
  bool big_;
};

// A field that is most significant byte first whatever the handset's order.
void PutU32BigEndian(std::span<std::uint8_t> payload, std::size_t offset, std::uint32_t value);

}  // namespace merovane
