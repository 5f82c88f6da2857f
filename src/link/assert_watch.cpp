#include "link/assert_watch.h"

#include <cstddef>

#include "link/frame_codec.h"

namespace merovane {

bool HoldsAssertReport(std::span<const std::uint8_t> chunk) {
  for (std::size_t start = 1; start + kHeaderBytes <= chunk.size(); ++start) {
    if (chunk[start - 1] != kFlag || chunk[start] == kFlag) continue;
    const auto header = chunk.subspan(start, kHeaderBytes);
    const bool sequenceZero = (header[0] | header[1] | header[2] | header[3]) == 0;
    const bool lengthZero = (header[4] | header[5]) == 0;
    if (header[6] == 0xFF && header[7] <= 2 && sequenceZero && !lengthZero) return true;
  }
  return false;
}

}  // namespace merovane
