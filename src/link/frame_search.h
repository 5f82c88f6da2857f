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
    bool found = false;
    bool flagSeen = false;
  };

  // Takes one frame out of the ring, with all that stands before it, and hands it, flags included,
  // to `take`. Without a whole frame noise is discarded, and a started frame or a lone flag stays
  // at the ring's head. A ring of fewer than 10 bytes is left as it is. Two adjacent flags are no
  // frame: the second one opens.
  template <typename Take>
  Outcome Extract(Take&& take) {
    Outcome outcome;
    ring_.Visit([&](std::span<const std::uint8_t> held, std::uint64_t position) {
      const Place place = Find(held, position, outcome.flagSeen);
      outcome.found = place.frameBytes > 0;
      if (outcome.found) take(held.subspan(place.start, place.frameBytes));
      return place.start + place.frameBytes;
    });
    return outcome;
  }

 private:
  // A frame; without one, where the bytes to be kept start.
  struct Place {
    std::size_t start = 0;
    std::size_t frameBytes = 0;
  };
  Place Find(std::span<const std::uint8_t> held, std::uint64_t position, bool& flagSeen);

  ByteRing& ring_;
  // A started frame that was searched to its end before: a search that goes on there
  // finds what a new one would, as long as the ring's head has not moved.
  std::uint64_t startedFrame_ = 0;
  std::size_t searchedBytes_ = 0;
};

}  // namespace merovane
