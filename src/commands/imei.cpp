#include "commands/imei.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kOddDigitsIdentity = 0xA;

std::array<std::uint8_t, kImeiDigits> Nibbles(
    std::span<const std::uint8_t, kPackedImeiBytes> packed) {
  std::array<std::uint8_t, kImeiDigits> nibbles{};
  nibbles[0] = packed[0] >> 4;
  for (std::size_t at = 1; at < kPackedImeiBytes; ++at) {
    nibbles[2 * at - 1] = packed[at] & 0x0F;
    nibbles[2 * at] = packed[at] >> 4;
  }
  return nibbles;
}

}  // namespace

std::optional<PackedImei> PackImei(const char* text) {
  std::array<std::uint8_t, kImeiDigits> digits{};
  for (std::size_t at = 0; at < kImeiDigits; ++at) {
    if (text[at] < '0' || text[at] > '9') return std::nullopt;
    digits[at] = static_cast<std::uint8_t>(text[at] - '0');
  }
  PackedImei packed{};
  packed[0] = static_cast<std::uint8_t>(digits[0] << 4 | kOddDigitsIdentity);
  for (std::size_t at = 1; at < kPackedImeiBytes; ++at) {
    packed[at] = static_cast<std::uint8_t>(digits[2 * at] << 4 | digits[2 * at - 1]);
  }
  return packed;
}

ImeiText HexImeiText(std::span<const std::uint8_t, kPackedImeiBytes> packed) {
  ImeiText text{};
  std::size_t at = 0;
  for (const std::uint8_t nibble : Nibbles(packed)) text[at++] = "0123456789abcdef"[nibble];
  return text;
}

ImeiText DecimalImeiText(std::span<const std::uint8_t, kPackedImeiBytes> packed) {
  ImeiText text{};
  std::size_t at = 0;
  for (const std::uint8_t nibble : Nibbles(packed)) {
    if (nibble > 9 && at < kImeiDigits) text[at++] = '1';
    if (at < kImeiDigits) text[at++] = static_cast<char>('0' + nibble % 10);
  }
  return text;
}

}  // namespace merovane::commands
