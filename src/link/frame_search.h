// Finds whole frames in the bytes of a ring.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "link/byte_ring.h"
#include "link/frame_codec.h"

namespace merovane {

class FrameSearch {
 public:
  explicit FrameSearch(ByteRing& ring) : ring_(ring) {}

  struct Outcome {
    std::size_t frameBytes = 0;  // 0: no whole frame, or one larger than the output
    bool flagSeen = false;
  };

  // Takes one frame, flags included, out of the ring, with all that stands before it. Without a
  // whole frame noise is discarded, and a started frame or a lone flag stays at the ring's head. A
  // ring of fewer than 10 bytes is left as it is. Two adjacent flags are no frame: the
  // second one opens.
  Outcome Extract(std::span<std::uint8_t> output);

 private:
  ByteRing& ring_;
  // A started frame that was searched to its end before: a search that goes on there
  // finds what a new one would, as long as the ring's head has not moved.
  std::uint64_t startedFrame_ = 0;
  std::size_t searchedBytes_ = 0;
};

}  // namespace merovane
