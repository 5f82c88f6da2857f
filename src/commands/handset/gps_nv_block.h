// The GPS settings block, which the fixed-NV information carries as well.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "link/byte_order.h"

namespace merovane::commands {

inline constexpr std::size_t kGpsNvBytes = 44;

// Between a caller's block and the handset's, either way: one word has a byte order, the rest is
// passed on as it is.
inline void ConvertGpsNvBlock(ByteOrder order, std::span<std::uint8_t, kGpsNvBytes> block) {
  constexpr std::size_t kSwappedWord = 24;
  order.SwapArray32(block.subspan<kSwappedWord, 4>());
}

}  // namespace merovane::commands
