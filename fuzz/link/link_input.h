// What the fuzzer does with an input, for the corpus test too.
//
// The bytes arrive in pieces whose sizes the input chooses. Every frame that is found must be the
// one that a walk over the ring finds, and must decode as byte by byte, never outside its buffers.
// After the input comes silence, noise without a flag, and a whole frame: that must be found.
#pragma once

#include <array>
#include <cstdlib>
#include <memory>
#include <span>

#include "link/assert_watch.h"
#include "link/frame_codec.h"
#include "link/frame_search.h"
#include "support/byte_by_byte.h"

namespace merovane::fuzz {

inline void Require(bool condition) {
  if (!condition) std::abort();
}

inline void CheckDecoding(std::span<const std::uint8_t> frame) {
  // Exactly as large as they must be, so that the sanitizer sees one byte too many.
  const std::unique_ptr<std::uint8_t[]> source(new std::uint8_t[frame.size()]);
  std::copy(frame.begin(), frame.end(), source.get());
  const std::unique_ptr<std::uint8_t[]> own(new std::uint8_t[frame.size()]);
  const std::size_t ownBytes = DecodeFrame({source.get(), frame.size()}, {own.get(), frame.size()});
  const std::unique_ptr<std::uint8_t[]> expected(new std::uint8_t[frame.size()]);
  Require(ownBytes == test::DecodeByteByByte(frame, expected.get()));
  Require(std::equal(own.get(), own.get() + ownBytes, expected.get()));
}

inline void CheckEncoding(std::span<const std::uint8_t> raw) {
  const std::size_t capacity = MaxEncodedBytes(raw.size());
  const std::unique_ptr<std::uint8_t[]> own(new std::uint8_t[capacity]);
  const std::unique_ptr<std::uint8_t[]> expected(new std::uint8_t[capacity]);
  const std::size_t bytes = EncodeFrame(raw, {own.get(), capacity});
  Require(bytes == test::EncodeByteByByte(raw, expected.get()));
  Require(std::equal(own.get(), own.get() + bytes, expected.get()));
}

class Line {
 public:
  // The last frame that this piece completed, empty when none.
  std::span<const std::uint8_t> Arrive(std::span<const std::uint8_t> piece) {
    ring_.Append(piece);
    walked_.Append(piece);
    std::size_t frameBytes = 0;
    for (;;) {
      test::Bytes found;
      const FrameSearch::Outcome outcome = search_.Extract(
          [&](std::span<const std::uint8_t> whole) { found.assign(whole.begin(), whole.end()); });
      bool flagSeen = false;
      const test::Bytes expected = walked_.Extract(flagSeen);
      Require(outcome.flagSeen == flagSeen && found == expected);
      Require(ring_.Count() == walked_.Held().size());
      if (expected.empty()) return std::span<const std::uint8_t>(frame_).first(frameBytes);
      frameBytes = expected.size();
      std::copy(expected.begin(), expected.end(), frame_.begin());
      CheckDecoding(expected);
    }
  }
  void Clear() {
    ring_.Clear();
    walked_.Drop(walked_.Held().size());
  }

 private:
  ByteRing ring_;
  FrameSearch search_{ring_};
  test::WalkedRing walked_;
  std::array<std::uint8_t, kMaxFrameBytes> frame_{};
};

inline void RunInput(std::span<const std::uint8_t> input) {
  CheckEncoding(input);
  CheckDecoding(input);
  static_cast<void>(HoldsAssertReport(input));
  if (input.empty()) return;

  const std::size_t piece = input.front() % 80 + 1;
  const std::span<const std::uint8_t> bytes = input.subspan(1);
  const auto inPieces = [&](Line& line, std::span<const std::uint8_t> data) {
    test::Bytes last;
    for (std::size_t at = 0; at < data.size();) {
      const std::size_t count = std::min(1 + (piece + at * 7) % 80, data.size() - at);
      const auto frame = line.Arrive(data.subspan(at, count));
      if (!frame.empty()) last.assign(frame.begin(), frame.end());
      at += count;
    }
    return last;
  };
  Line line;
  inPieces(line, bytes);

  // The input as noise without a flag, then as the payload of a whole frame.
  line.Clear();
  test::Bytes noise(bytes.begin(), bytes.end());
  std::erase(noise, kFlag);
  inPieces(line, noise);
  const std::size_t payloadBytes = std::min<std::size_t>(bytes.size(), 4000);
  test::Bytes raw(payloadBytes + kHeaderBytes, 0x11);
  std::copy_n(bytes.begin(), payloadBytes, raw.begin() + kHeaderBytes);
  test::Bytes frame(MaxEncodedBytes(raw.size()));
  frame.resize(EncodeFrame(raw, frame));
  Require(inPieces(line, frame) == frame);
}

}  // namespace merovane::fuzz
