#include "link/frame_codec.h"

#include <gtest/gtest.h>

#include "link/byte_order.h"
#include "support/byte_by_byte.h"
#include "support/guarded_buffer.h"

namespace merovane::test {
namespace {

std::string Encoded(const Bytes& raw) {
  GuardedBuffer<std::uint8_t> output(MaxEncodedBytes(raw.size()));
  return output.Hex(EncodeFrame(raw, {output.Data(), output.Size()}));
}

// The source stands at the very end of its memory, so that a sanitizer sees reads behind it.
std::string Decoded(const Bytes& frame) {
  GuardedBuffer<std::uint8_t> output(frame.size());
  return output.Hex(DecodeFrame(frame, {output.Data(), output.Size()}));
}

std::string Header(FrameId id, std::uint32_t sequence, const Bytes& payload) {
  Bytes raw(payload.size() + kHeaderBytes, 0xEE);
  BuildHeader(id, sequence, payload, raw);
  return ToHex(raw);
}

TEST(FrameCodec, EscapesFlagsAndEscapesAndNothingElse) {
  EXPECT_EQ(Encoded({}), "7E 7E");
  EXPECT_EQ(Encoded(Hex("7D 7E 7F FF 00 7C 5D 5E 20")), "7E 7D 5D 7D 5E 7F FF 00 7C 5D 5E 20 7E");
  EXPECT_EQ(Decoded(Hex("7E 7D 5D 7D 5E 7F FF 00 7C 5D 5E 20 7E")), "7D 7E 7F FF 00 7C 5D 5E 20");
}

TEST(FrameCodec, HeaderFollowsTheByteOrderInItsLengthOnly) {
  SetBigEndian(true);
  EXPECT_EQ(Header({13, 2}, 0, {}), "00 00 00 00 00 08 0D 02");
  EXPECT_EQ(Header({0xFE, 0x81}, 0x0A0B0C0D, Hex("01 02 03 04")),
            "0D 0C 0B 0A 00 0C FE 81 01 02 03 04");
  SetBigEndian(false);
  EXPECT_EQ(Header({0xFE, 0x81}, 0x0A0B0C0D, Hex("01 02 03 04")),
            "0D 0C 0B 0A 0C 00 FE 81 01 02 03 04");
  // The length is taken in 16 bits.
  EXPECT_EQ(Header({1, 2}, 0, Bytes(65530, 0)).substr(0, 23), "00 00 00 00 02 00 01 02");
  SetBigEndian(true);
}

TEST(FrameCodec, WhatIsNotFlaggedAtBothEndsDoesNotDecode) {
  for (const char* frame : {"", "7E", "7E 7E", "00 7E", "7E 01 02", "01 02 7E", "7D 5E 7E"}) {
    EXPECT_EQ(Decoded(Hex(frame)), "") << frame;
  }
}

TEST(FrameCodec, AnEscapeAsTheLastInnerByteTakesTheClosingFlag) {
  EXPECT_EQ(Decoded(Hex("7E 01 7D 7E")), "01 5E");
  EXPECT_EQ(Decoded(Hex("7E 7D 7E")), "5E");
  // In every place of a block, alone and beside others.
  for (std::size_t inner = 1; inner < 70; ++inner) {
    for (const std::size_t other : {inner, std::size_t{1}}) {
      Bytes frame(inner + 2, 0x11);
      frame.front() = frame.back() = 0x7E;
      frame[inner] = 0x7D;
      if (other < inner) frame[other] = 0x7D;
      Bytes expected(frame.size());
      expected.resize(DecodeByteByByte(frame, expected.data()));
      EXPECT_EQ(Decoded(frame), ToHex(expected)) << inner << " " << other;
    }
  }
}

TEST(FrameCodec, EqualsTheByteLoopOnEveryKindOfData) {
  constexpr std::uint32_t kSeed = 20240613;
  std::mt19937 random(kSeed);
  for (const unsigned oneIn : {0u, 1u, 2u, 4u, 16u, 40u}) {
    for (std::size_t size = 0; size < 330; ++size) {
      const std::size_t bytes = size < 300 ? size : 300 + random() % 8900;
      const Bytes raw = RandomBytes(random, bytes, oneIn);
      Bytes expected(2 * bytes + 10);
      expected.resize(EncodeByteByByte(raw, expected.data()));
      const std::string encoded = Encoded(raw);
      ASSERT_EQ(encoded, ToHex(expected)) << "seed " << kSeed << " size " << bytes;
      ASSERT_EQ(Decoded(expected), ToHex(raw)) << "seed " << kSeed << " size " << bytes;
    }
  }
}

TEST(FrameCodec, DecodesWhatNoEncoderMadeAsTheByteLoopDoes) {
  constexpr std::uint32_t kSeed = 7;
  std::mt19937 random(kSeed);
  for (int round = 0; round < 4000; ++round) {
    Bytes frame = RandomBytes(random, random() % 80, 1 + random() % 8);
    frame.insert(frame.begin(), 0x7E);
    frame.push_back(0x7E);
    Bytes expected(frame.size());
    expected.resize(DecodeByteByByte(frame, expected.data()));
    ASSERT_EQ(Decoded(frame), ToHex(expected)) << ToHex(frame);
  }
}

TEST(ByteOrder, AppliesToFieldsAndArrays) {
  Bytes data = Hex("01 02 03 04 05 06 07");
  SetBigEndian(true);
  EXPECT_EQ(GetU16(data, 1), 0x0203);
  EXPECT_EQ(GetU32(data, 1), 0x02030405u);
  SwapArray16(data);
  EXPECT_EQ(ToHex(data), "02 01 04 03 06 05 07");
  SwapArray32(data);
  EXPECT_EQ(ToHex(data), "03 04 01 02 06 05 07");
  SetBigEndian(false);
  SwapArray16(data);
  EXPECT_EQ(ToHex(data), "03 04 01 02 06 05 07");
  EXPECT_EQ(GetU16(data, 5), 0x0705);
  PutU32(data, 0, 0x11223344);
  EXPECT_EQ(ToHex(data), "44 33 22 11 06 05 07");
  PutU32BigEndian(data, 0, 0x11223344);
  EXPECT_EQ(ToHex(data), "11 22 33 44 06 05 07");
  SetBigEndian(true);
  PutU16(data, 0, 0x5566);
  EXPECT_EQ(ToHex(data), "55 66 33 44 06 05 07");
}

}  // namespace
}  // namespace merovane::test
