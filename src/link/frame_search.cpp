#include "link/frame_search.h"

#include <cstring>

namespace merovane {

FrameSearch::Outcome FrameSearch::Extract(std::span<std::uint8_t> output) {
  Outcome outcome;
  ring_.Visit([&](std::span<const std::uint8_t> held, std::uint64_t position) -> std::size_t {
    if (held.size() < kMinFrameBytes) return 0;
    const auto find = [&](std::size_t from) {
      const void* flag = std::memchr(held.data() + from, kFlag, held.size() - from);
      return flag ? static_cast<std::size_t>(static_cast<const std::uint8_t*>(flag) - held.data())
                  : held.size();
    };

    std::size_t start = 0;
    std::size_t searched = searchedBytes_;
    searchedBytes_ = 0;
    if (searched == 0 || position != startedFrame_) {
      start = find(0);
      if (start == held.size()) return held.size();
      // The last flag of a run of flags opens the frame.
      while (start + 1 < held.size() && held[start + 1] == kFlag) ++start;
      searched = start + 1;
    }
    outcome.flagSeen = true;

    const std::size_t closing = searched < held.size() ? find(searched) : held.size();
    if (closing == held.size()) {
      if (start + 1 < held.size()) {
        startedFrame_ = position + start;
        searchedBytes_ = held.size() - start;
      }
      return start;
    }
    const std::size_t frameBytes = closing + 1 - start;
    if (frameBytes <= output.size()) {
      std::memcpy(output.data(), held.data() + start, frameBytes);
      outcome.frameBytes = frameBytes;
    }
    return closing + 1;
  });
  return outcome;
}

}  // namespace merovane
