// What came from a handset while a command waited for something else: the traces that a failure
// leaves.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "link/byte_order.h"
#include "link/frame_codec.h"

namespace merovane {

class Sightings {
 public:
  // A request is sent, or something is awaited that no request precedes.
  void BeginWait() { wait_ = {}; }
  void SawBytes(std::size_t count);
  void SawFrame(std::span<const std::uint8_t> decoded, ByteOrder order);
  void SawStartFrame(bool inOtherOrder);
  void SawAnswer() { ++answersEver_; }

  struct FrameKind {
    FrameId id;
    std::uint32_t count = 0;
  };
  // Of one wait.
  struct Wait {
    std::uint32_t bytes = 0;
    std::uint32_t frames = 0;
    std::uint32_t startFrames = 0;
    // Whose length makes sense in the other byte order only.
    std::uint32_t swappedFrames = 0;
    // The first kinds of frames that came.
    std::array<FrameKind, 8> kinds{};
    std::size_t kindCount = 0;
  };
  const Wait& LastWait() const { return wait_; }
  // Since the port was opened.
  std::uint64_t BytesEver() const { return bytesEver_; }
  std::uint64_t AnswersEver() const { return answersEver_; }

 private:
  Wait wait_;
  std::uint64_t bytesEver_ = 0;
  std::uint64_t answersEver_ = 0;
};

}  // namespace merovane
