// The addresses of the handset's short-range radios.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace merovane::commands {

inline constexpr std::size_t kAddressBytes = 6;
using Address = std::array<std::uint8_t, kAddressBytes>;

// Some commands and blocks have an address last byte first.
inline Address Reversed(std::span<const std::uint8_t, kAddressBytes> address) {
  Address reversed;
  std::ranges::reverse_copy(address, reversed.begin());
  return reversed;
}

}  // namespace merovane::commands
