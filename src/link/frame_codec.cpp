#include "link/frame_codec.h"

#include <algorithm>
#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace merovane {
namespace {

// Blocks in which a special byte is looked for at once; the small one is for the end of the data.
constexpr std::size_t kBlock = 16;
constexpr std::size_t kSmallBlock = 8;
// So many special bytes in a block mean that more will follow: the next bytes go one by one.
constexpr int kManySpecials = 3;
constexpr std::size_t kDenseBytes = 256;

bool IsSpecial(std::uint8_t byte) { return byte == kFlag || byte == kEscape; }

// One bit per byte at `data` that must be escaped, or that is an escape.
#if defined(__SSE2__)
template <std::size_t Size>
__m128i Load(const std::uint8_t* data) {
  const auto* block = reinterpret_cast<const __m128i*>(data);
  return Size == kBlock ? _mm_loadu_si128(block) : _mm_loadl_epi64(block);
}
unsigned BitsOf(__m128i comparison) { return static_cast<unsigned>(_mm_movemask_epi8(comparison)); }
template <std::size_t Size>
unsigned SpecialsIn(const std::uint8_t* data) {
  const __m128i block = Load<Size>(data);
  return BitsOf(_mm_or_si128(_mm_cmpeq_epi8(block, _mm_set1_epi8(kFlag)),
                             _mm_cmpeq_epi8(block, _mm_set1_epi8(kEscape))));
}
template <std::size_t Size>
unsigned EscapesIn(const std::uint8_t* data) {
  return BitsOf(_mm_cmpeq_epi8(Load<Size>(data), _mm_set1_epi8(kEscape)));
}
#else
template <std::size_t Size>
unsigned SpecialsIn(const std::uint8_t* data) {
  unsigned mask = 0;
  for (std::size_t i = 0; i < Size; ++i) mask |= static_cast<unsigned>(IsSpecial(data[i])) << i;
  return mask;
}
template <std::size_t Size>
unsigned EscapesIn(const std::uint8_t* data) {
  unsigned mask = 0;
  for (std::size_t i = 0; i < Size; ++i) mask |= static_cast<unsigned>(data[i] == kEscape) << i;
  return mask;
}
#endif

// How many of the bytes from a block with these special bytes on go one by one.
std::size_t BytesOneByOne(unsigned specials, std::ptrdiff_t left) {
  if (std::popcount(specials) < kManySpecials) return kBlock;
  return std::min(kDenseBytes, static_cast<std::size_t>(left));
}

std::uint8_t* EscapeOneByOne(const std::uint8_t* in, const std::uint8_t* end, std::uint8_t* out) {
  for (; in != end; ++in) {
    if (IsSpecial(*in)) {
      *out++ = kEscape;
      *out++ = *in ^ kEscapeMask;
    } else {
      *out++ = *in;
    }
  }
  return out;
}

// Takes bytes until `end`, and one more when the last of them is an escape.
void UnescapeOneByOne(const std::uint8_t*& in, const std::uint8_t* end, std::uint8_t*& out) {
  while (in < end) {
    if (*in == kEscape) {
      *out++ = in[1] ^ kEscapeMask;
      in += 2;
    } else {
      *out++ = *in++;
    }
  }
}

}  // namespace

void BuildHeader(FrameId id, std::uint32_t sequence, ByteOrder order,
                 std::span<const std::uint8_t> payload, std::span<std::uint8_t> output) {
  std::memcpy(output.data(), &sequence, sizeof sequence);
  order.PutU16(output, 4, static_cast<std::uint16_t>(payload.size() + kHeaderBytes));
  output[6] = id.type;
  output[7] = id.subtype;
  if (!payload.empty()) std::memcpy(&output[kHeaderBytes], payload.data(), payload.size());
}

std::size_t EncodeFrame(std::span<const std::uint8_t> raw, std::span<std::uint8_t> output) {
  const std::uint8_t* in = raw.data();
  const std::uint8_t* const end = in + raw.size();
  std::uint8_t* out = output.data();
  *out++ = kFlag;
  while (end - in >= static_cast<std::ptrdiff_t>(kBlock)) {
    const unsigned specials = SpecialsIn<kBlock>(in);
    if (specials == 0) {
      std::memcpy(out, in, kBlock);
      in += kBlock;
      out += kBlock;
    } else if ((specials & (specials - 1)) == 0) {
      // A lone special byte: copy the block whole, then write over what follows it.
      const auto run = static_cast<std::size_t>(std::countr_zero(specials));
      std::memcpy(out, in, kBlock);
      out[run] = kEscape;
      out[run + 1] = in[run] ^ kEscapeMask;
      std::memcpy(out + run + 2, in + run + 1, kBlock - run - 1);
      in += kBlock;
      out += kBlock + 1;
    } else {
      const std::size_t count = BytesOneByOne(specials, end - in);
      out = EscapeOneByOne(in, in + count, out);
      in += count;
    }
  }
  if (end - in >= static_cast<std::ptrdiff_t>(kSmallBlock) && SpecialsIn<kSmallBlock>(in) == 0) {
    std::memcpy(out, in, kSmallBlock);
    in += kSmallBlock;
    out += kSmallBlock;
  }
  out = EscapeOneByOne(in, end, out);
  *out++ = kFlag;
  return static_cast<std::size_t>(out - output.data());
}

std::size_t DecodeFrame(std::span<const std::uint8_t> frame, std::span<std::uint8_t> output) {
  if (frame.size() < 2 || frame.front() != kFlag || frame.back() != kFlag) return 0;
  const std::uint8_t* in = frame.data() + 1;
  const std::uint8_t* const end = frame.data() + frame.size() - 1;
  std::uint8_t* out = output.data();
  while (end - in >= static_cast<std::ptrdiff_t>(kBlock)) {
    const unsigned escapes = EscapesIn<kBlock>(in);
    if (escapes == 0) {
      std::memcpy(out, in, kBlock);
      in += kBlock;
      out += kBlock;
    } else if ((escapes & (escapes - 1)) == 0) {
      const auto run = std::countr_zero(escapes);
      std::memcpy(out, in, kBlock);
      out[run] = in[run + 1] ^ kEscapeMask;
      in += run + 2;
      out += run + 1;
    } else {
      UnescapeOneByOne(in, in + BytesOneByOne(escapes, end - in), out);
    }
  }
  if (end - in >= static_cast<std::ptrdiff_t>(kSmallBlock) && EscapesIn<kSmallBlock>(in) == 0) {
    std::memcpy(out, in, kSmallBlock);
    in += kSmallBlock;
    out += kSmallBlock;
  }
  UnescapeOneByOne(in, end, out);
  return static_cast<std::size_t>(out - output.data());
}

}  // namespace merovane
