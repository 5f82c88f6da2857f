// A frame that arrived, decoded, or why there is none.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

#include "link/byte_order.h"
#include "link/frame_codec.h"
#include "link/result.h"

namespace merovane {

// It stands in this object, 9 KB large, and is neither copied nor moved: the link's functions build
// it where their caller wants it.
class Frame {
 public:
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;

  explicit operator bool() const { return Succeeded(why_); }
  // Success when there is a frame.
  Result Why() const { return why_; }

  // Header and payload; empty when there is no frame.
  std::span<const std::uint8_t> Bytes() const { return {storage_.data(), bytes_}; }
  // Empty also when the frame is no longer than its header.
  std::span<const std::uint8_t> Payload() const {
    return bytes_ > kHeaderBytes ? Bytes().subspan(kHeaderBytes) : std::span<const std::uint8_t>{};
  }
  // Of a frame at least as long as a header; {0, 0} otherwise.
  FrameId Id() const { return bytes_ >= kHeaderBytes ? IdOf(Bytes()) : FrameId{0, 0}; }

  // Fields of the payload in the handset's byte order. Bytes that did not arrive read as zero.
  std::uint16_t U16(std::size_t offset) const { return order_.GetU16(Payload(), offset); }
  std::uint32_t U32(std::size_t offset) const { return order_.GetU32(Payload(), offset); }

 private:
  friend class PhoneLink;

  // `receive(*this)` fills the frame and says how it went.
  template <typename Receive>
  Frame(ByteOrder order, Receive&& receive) : order_(order) {
    why_ = std::forward<Receive>(receive)(*this);
    if (!Succeeded(why_)) bytes_ = 0;
  }

  ByteOrder order_;
  Result why_ = Result::NoAnswer;
  std::size_t bytes_ = 0;
  // Only the first `bytes_` of it have a value.
  std::array<std::uint8_t, kMaxFrameBytes> storage_;
};

// The frame that a request waited for.
using Answer = Frame;

}  // namespace merovane
