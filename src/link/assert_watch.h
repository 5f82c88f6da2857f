// Recognises a handset's assert report in raw channel bytes.
#pragma once

#include <cstdint>
#include <span>

namespace merovane {

// True when the chunk holds the header of an assert report: type 0xFF, subtype 0 to 2, sequence 0
// and a length other than 0. Looks at escaped bytes as they come, within the one chunk.
bool HoldsAssertReport(std::span<const std::uint8_t> chunk);

}  // namespace merovane
