#include "link/frame_search.h"

#include <cstring>

namespace merovane {

FrameSearch::Place FrameSearch::Find(std::span<const std::uint8_t> held, std::uint64_t position,
                                     bool& flagSeen) {
  if (held.size() < kMinFrameBytes) return {};
  const auto flagFrom = [&](std::size_t from) {
    if (from == held.size()) return from;
    const void* flag = std::memchr(held.data() + from, kFlag, held.size() - from);
    return flag ? static_cast<std::size_t>(static_cast<const std::uint8_t*>(flag) - held.data())
                : held.size();
  };

  std::size_t start = 0;
  std::size_t searched = searchedBytes_;
  searchedBytes_ = 0;
  if (searched == 0 || position != startedFrame_) {
    start = flagFrom(0);
    if (start == held.size()) return {start, 0};
    // The last flag of a run of flags opens the frame.
    while (start + 1 < held.size() && held[start + 1] == kFlag) ++start;
    searched = start + 1;
  }
  flagSeen = true;

  const std::size_t closing = flagFrom(searched);
  if (closing < held.size()) return {start, closing + 1 - start};
  if (start + 1 < held.size()) {
    startedFrame_ = position + start;
    searchedBytes_ = held.size() - start;
  }
  return {start, 0};
}

}  // namespace merovane
