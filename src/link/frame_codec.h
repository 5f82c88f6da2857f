// The diagnostic frame: an 8-byte header and a payload, escaped, between two flags.
//
//   offset 0  u32  sequence, little-endian always, normally 0
//          4  u16  length of header and payload, in the handset's byte order
//          6  u8   type
//          7  u8   subtype
//          8  ...  payload
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "link/byte_order.h"

namespace merovane {

inline constexpr std::uint8_t kFlag = 0x7E;
inline constexpr std::uint8_t kEscape = 0x7D;
inline constexpr std::uint8_t kEscapeMask = 0x20;

inline constexpr std::size_t kHeaderBytes = 8;
// The largest frame that is taken from the channel, flags and escapes included.
inline constexpr std::size_t kMaxFrameBytes = 9216;
// The shortest: two flags and a header.
inline constexpr std::size_t kMinFrameBytes = kHeaderBytes + 2;

struct FrameId {
  std::uint8_t type;
  std::uint8_t subtype;
  friend bool operator==(FrameId, FrameId) = default;
};

// What EncodeFrame writes at most for a raw frame of `rawBytes`.
constexpr std::size_t MaxEncodedBytes(std::size_t rawBytes) { return 2 * rawBytes + 10; }

// Writes header and payload to `output`, which holds payload.size() + 8 bytes.
// The length field is taken in 16 bits.
void BuildHeader(FrameId id, std::uint32_t sequence, ByteOrder order,
                 std::span<const std::uint8_t> payload, std::span<std::uint8_t> output);

// Escapes and flags; `output` holds MaxEncodedBytes(raw.size()). Returns the bytes written.
std::size_t EncodeFrame(std::span<const std::uint8_t> raw, std::span<std::uint8_t> output);

// Undoes EncodeFrame; `output` holds frame.size() bytes. Returns the bytes written, 0 when
// `frame` has no flag at either end. An escape as the last inner byte takes the closing flag with
// it.
std::size_t DecodeFrame(std::span<const std::uint8_t> frame, std::span<std::uint8_t> output);

// Type and subtype of a decoded frame of at least kHeaderBytes.
inline FrameId IdOf(std::span<const std::uint8_t> decoded) { return {decoded[6], decoded[7]}; }

}  // namespace merovane
