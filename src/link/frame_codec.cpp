#include "link/frame_codec.h"

#include <bit>
#include <cstring>

#include "link/byte_order.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace merovane {
namespace {

constexpr std::size_t kBlock = 16;

bool IsSpecial(std::uint8_t byte) { return byte == kFlag || byte == kEscape; }

// One bit per byte of the block at `data` that satisfies the comparison.
#if defined(__SSE2__)
unsigned SpecialsIn(const std::uint8_t* data) {
  const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data));
  return static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(
      _mm_cmpeq_epi8(block, _mm_set1_epi8(kFlag)), _mm_cmpeq_epi8(block, _mm_set1_epi8(kEscape)))));
}
unsigned EscapesIn(const std::uint8_t* data) {
  const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data));
  return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(block, _mm_set1_epi8(kEscape))));
}
#else
unsigned SpecialsIn(const std::uint8_t* data) {
  unsigned mask = 0;
  for (std::size_t i = 0; i < kBlock; ++i) mask |= static_cast<unsigned>(IsSpecial(data[i])) << i;
  return mask;
}
unsigned EscapesIn(const std::uint8_t* data) {
  unsigned mask = 0;
  for (std::size_t i = 0; i < kBlock; ++i) mask |= static_cast<unsigned>(data[i] == kEscape) << i;
  return mask;
}
#endif

// Writes one byte, escaped if need be, without a branch: where special bytes are frequent, guessing
// wrong costs more than the second store.
std::uint8_t* PutEscaped(std::uint8_t byte, std::uint8_t* out) {
  const auto special = static_cast<unsigned>(IsSpecial(byte));
  out[0] = kEscape;
  out[special] = static_cast<std::uint8_t>(byte ^ special * kEscapeMask);
  return out + special + 1;
}

}  // namespace

void BuildHeader(FrameId id, std::uint32_t sequence, std::span<const std::uint8_t> payload,
                 std::span<std::uint8_t> output) {
  std::memcpy(output.data(), &sequence, sizeof sequence);
  PutU16(output, 4, static_cast<std::uint16_t>(payload.size() + kHeaderBytes));
  output[6] = id.type;
  output[7] = id.subtype;
  if (!payload.empty()) std::memcpy(&output[kHeaderBytes], payload.data(), payload.size());
}

std::size_t EncodeFrame(std::span<const std::uint8_t> raw, std::span<std::uint8_t> output) {
  const std::uint8_t* in = raw.data();
  const std::uint8_t* const end = in + raw.size();
  std::uint8_t* out = output.data();
  *out++ = kFlag;
  while (static_cast<std::size_t>(end - in) >= kBlock) {
    const unsigned specials = SpecialsIn(in);
    if (specials == 0) {
      std::memcpy(out, in, kBlock);
      in += kBlock;
      out += kBlock;
    } else if ((specials & (specials - 1)) == 0) {
      // A lone special byte: copy the block whole, then write over what follows it.
      const auto run = static_cast<std::size_t>(std::countr_zero(specials));
      std::memcpy(out, in, kBlock);
      out = PutEscaped(in[run], out + run);
      std::memcpy(out, in + run + 1, kBlock - run - 1);
      in += kBlock;
      out += kBlock - run - 1;
    } else {
      for (std::size_t i = 0; i < kBlock; ++i) out = PutEscaped(*in++, out);
    }
  }
  while (in != end) out = PutEscaped(*in++, out);
  *out++ = kFlag;
  return static_cast<std::size_t>(out - output.data());
}

std::size_t DecodeFrame(std::span<const std::uint8_t> frame, std::span<std::uint8_t> output) {
  if (frame.size() < 2 || frame.front() != kFlag || frame.back() != kFlag) return 0;
  const std::uint8_t* in = frame.data() + 1;
  const std::uint8_t* const end = frame.data() + frame.size() - 1;
  std::uint8_t* out = output.data();
  // Never reads past the closing flag: an escape takes one byte more than the loop asks for.
  const auto takeOne = [&] {
    const auto escaped = static_cast<unsigned>(*in == kEscape);
    in += escaped;
    *out++ = static_cast<std::uint8_t>(*in++ ^ escaped * kEscapeMask);
  };
  while (end - in >= static_cast<std::ptrdiff_t>(kBlock)) {
    const unsigned escapes = EscapesIn(in);
    if (escapes == 0) {
      std::memcpy(out, in, kBlock);
      in += kBlock;
      out += kBlock;
    } else if ((escapes & (escapes - 1)) == 0) {
      const auto run = std::countr_zero(escapes);
      std::memcpy(out, in, kBlock);
      in += run;
      out += run;
      takeOne();
    } else {
      const std::uint8_t* const blockEnd = in + kBlock;
      while (in < blockEnd) takeOne();
    }
  }
  while (in < end) takeOne();
  return static_cast<std::size_t>(out - output.data());
}

}  // namespace merovane
