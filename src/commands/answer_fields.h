// What answers hold, into callers' buffers. Answers may be shorter than they should be: what did
// not arrive reads as zero.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <span>

#include "link/frame.h"

namespace merovane::commands {

// As many of the bytes as there is room for; how many that is.
inline std::uint32_t CopyCut(std::span<const std::uint8_t> bytes, std::span<std::uint8_t> room) {
  const std::size_t copied = std::min(bytes.size(), room.size());
  if (copied > 0) std::memcpy(room.data(), bytes.data(), copied);
  return static_cast<std::uint32_t>(copied);
}

// The payload's bytes from `offset` on into the whole of `out`.
inline void CopyZeroFilled(std::span<const std::uint8_t> payload, std::size_t offset,
                           std::span<std::uint8_t> out) {
  const std::size_t there =
      offset < payload.size() ? std::min(payload.size() - offset, out.size()) : 0;
  if (there > 0) std::memcpy(out.data(), payload.data() + offset, there);
  if (there < out.size()) std::memset(out.data() + there, 0, out.size() - there);
}

template <std::size_t kBytes>
std::array<std::uint8_t, kBytes> FirstBytes(std::span<const std::uint8_t> payload) {
  std::array<std::uint8_t, kBytes> bytes;
  CopyZeroFilled(payload, 0, bytes);
  return bytes;
}

// Answers of the WiFi transceiver and the DSP begin with a word that is not 0 when what they were
// told was not done.
inline constexpr std::size_t kStatusBytes = 4;
inline bool TellsFailure(const Answer& answer) { return answer.U32(0) != 0; }

}  // namespace merovane::commands
