#include "link/sightings.h"

#include <algorithm>

namespace merovane {
namespace {

constexpr FrameId kStartFrame{0xFE, 1};
constexpr std::size_t kLengthOffset = 4;

}  // namespace

void Sightings::SawBytes(std::size_t count) {
  wait_.bytes += static_cast<std::uint32_t>(count);
  bytesEver_ += count;
}

void Sightings::SawFrame(std::span<const std::uint8_t> decoded, ByteOrder order) {
  ++wait_.frames;
  if (decoded.size() < kHeaderBytes) return;
  const ByteOrder other = order.IsBig() ? ByteOrder::Little() : ByteOrder::Big();
  if (order.GetU16(decoded, kLengthOffset) != decoded.size() &&
      other.GetU16(decoded, kLengthOffset) == decoded.size()) {
    ++wait_.swappedFrames;
  }
  const FrameId id = IdOf(decoded);
  if (id == kStartFrame) ++wait_.startFrames;
  const auto known = std::span(wait_.kinds).first(wait_.kindCount);
  const auto found = std::ranges::find(known, id, &FrameKind::id);
  if (found != known.end()) {
    ++found->count;
  } else if (wait_.kindCount < wait_.kinds.size()) {
    wait_.kinds[wait_.kindCount++] = {id, 1};
  }
}

void Sightings::SawStartFrame(bool inOtherOrder) {
  ++wait_.frames;
  ++wait_.startFrames;
  if (inOtherOrder) ++wait_.swappedFrames;
}

}  // namespace merovane
