// How much of the handset's registers one request reaches.
#pragma once

#include <cstddef>
#include <cstdint>

#include "commands/operation.h"
#include "merovane/types.h"

namespace merovane::commands {

inline constexpr std::size_t kRegisterHeaderBytes = 16;
// The header's length field counts header and data in 16 bits.
inline constexpr std::uint64_t kMaxRegisterReadBytes = 0xFFFF - kRegisterHeaderBytes;
// The frame's counts the frame's header as well.
inline constexpr std::uint64_t kMaxRegisterWriteBytes = kMaxPayloadBytes - kRegisterHeaderBytes;

constexpr std::uint64_t RegisterBytes(std::uint32_t accessWidth, std::uint32_t count) {
  const std::uint64_t unitBytes = accessWidth == QV_ACCESS_WIDTH_8    ? 1
                                  : accessWidth == QV_ACCESS_WIDTH_16 ? 2
                                                                      : 4;
  return unitBytes * count;
}

}  // namespace merovane::commands
