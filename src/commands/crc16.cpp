#include "commands/crc16.h"

#include <algorithm>
#include <array>

namespace merovane::commands {
namespace {

constexpr std::uint16_t kReflectedPolynomial = 0xA001;

constexpr std::array<std::uint16_t, 256> MakeTable() {
  std::array<std::uint16_t, 256> table{};
  for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
    std::uint32_t remainder = byte;
    for (int bit = 0; bit < 8; ++bit) {
      remainder = (remainder & 1) ? remainder >> 1 ^ kReflectedPolynomial : remainder >> 1;
    }
    table[byte] = static_cast<std::uint16_t>(remainder);
  }
  return table;
}

constexpr auto kTable = MakeTable();

}  // namespace

std::uint16_t Crc16Arc(std::span<const std::uint8_t> data) {
  std::uint16_t crc = 0;
  for (const std::uint8_t byte : data) {
    crc = static_cast<std::uint16_t>(crc >> 8 ^ kTable[(crc ^ byte) & 0xFF]);
  }
  return crc;
}

std::vector<std::uint8_t> WithChecksum(ByteOrder order, std::span<const std::uint8_t> block) {
  std::vector<std::uint8_t> checked(block.size() + kChecksumBytes);
  std::copy(block.begin(), block.end(), checked.begin());
  order.PutU16(checked, block.size(), Crc16Arc(block));
  return checked;
}

bool ChecksumMatches(ByteOrder order, std::span<const std::uint8_t> blockWithChecksum) {
  const std::size_t blockBytes = blockWithChecksum.size() - kChecksumBytes;
  return Crc16Arc(blockWithChecksum.first(blockBytes)) ==
         order.GetU16(blockWithChecksum, blockBytes);
}

}  // namespace merovane::commands
