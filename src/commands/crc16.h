// The checksum over blocks of production data.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "link/byte_order.h"

namespace merovane::commands {

// CRC-16/ARC: polynomial 0x8005, reflected, initial value 0, no final XOR.
std::uint16_t Crc16Arc(std::span<const std::uint8_t> data);

// Blocks travel followed by their checksum, in the handset's byte order.
inline constexpr std::size_t kChecksumBytes = 2;
// No block, and the checksum of nothing: what requests for a block carry.
inline constexpr std::array<std::uint8_t, kChecksumBytes> kEmptyBlock{};
std::vector<std::uint8_t> WithChecksum(ByteOrder order, std::span<const std::uint8_t> block);
// The last two of at least two bytes are the checksum of those before them.
bool ChecksumMatches(ByteOrder order, std::span<const std::uint8_t> blockWithChecksum);

}  // namespace merovane::commands
