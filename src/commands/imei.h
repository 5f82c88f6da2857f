// IMEIs as the handset stores them: 15 digits in 8 bytes, in the mobile identity encoding of
// 3GPP TS 24.008.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace merovane::commands {

inline constexpr std::size_t kImeiDigits = 15;
inline constexpr std::size_t kPackedImeiBytes = 8;

using PackedImei = std::array<std::uint8_t, kPackedImeiBytes>;
// With a terminating zero.
using ImeiText = std::array<char, kImeiDigits + 1>;

// Packs the first 15 characters, whatever follows them; nothing when one of them is no digit. A
// shorter text is read up to its terminating zero only.
std::optional<PackedImei> PackImei(const char* text);

// Packed digits as text. A damaged nibble, 10 to 15, shows as a letter a to f.
ImeiText HexImeiText(std::span<const std::uint8_t, kPackedImeiBytes> packed);
// The same, but a damaged nibble shows as two decimal digits; the text is cut to 15 characters, so
// that it always fits.
ImeiText DecimalImeiText(std::span<const std::uint8_t, kPackedImeiBytes> packed);

}  // namespace merovane::commands
