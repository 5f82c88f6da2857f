// The addresses of the handset's short-range radios.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace merovane::commands {

inline constexpr std::size_t kAddressBytes = 6;
using Address = std::array<std::uint8_t, kAddressBytes>;

// Of the six bytes there: some commands and blocks have an address last byte first.
inline Address Reversed(const std::uint8_t* address) {
  Address reversed;
  std::reverse_copy(address, address + kAddressBytes, reversed.begin());
  return reversed;
}

}  // namespace merovane::commands
