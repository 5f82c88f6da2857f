// CRC-16/ARC, bit by bit: this is a handset, not a fast one.
#pragma once

#include <cstdint>
#include <span>

namespace handset {

inline std::uint16_t Crc16(std::span<const std::uint8_t> bytes) {
  std::uint16_t crc = 0;
  for (std::uint8_t byte : bytes) {
    crc ^= byte;
    for (int bit = 0; bit < 8; ++bit) {
      crc = static_cast<std::uint16_t>((crc & 1) != 0 ? crc >> 1 ^ 0xA001 : crc >> 1);
    }
  }
  return crc;
}

}  // namespace handset
