// Frames of the handset's storage, in which flash items and NV items are read and written.
#pragma once

#include <array>
#include <cstdint>

#include "link/byte_order.h"
#include "link/frame_codec.h"

namespace merovane::commands {

inline constexpr std::uint8_t kStorageType = 13;
// Of every request, whatever its subtype.
inline constexpr FrameId kStorageAnswer{kStorageType, 0};
inline constexpr FrameId kReadNv{kStorageType, 0};

// Stands ahead of an NV item's bytes, in requests and in answers.
inline constexpr std::size_t kNvHeaderBytes = 2;
inline std::array<std::uint8_t, kNvHeaderBytes> NvHeader(ByteOrder order, std::uint16_t item) {
  std::array<std::uint8_t, kNvHeaderBytes> header;
  order.PutU16(header, 0, item);
  return header;
}

}  // namespace merovane::commands
