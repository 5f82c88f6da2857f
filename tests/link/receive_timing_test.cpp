#include "support/command_fixture.h"

namespace merovane::test {
namespace {

struct ReceiveTiming : CommandFixture {
  // One frame within the limit; `elapsedMs` is what that took.
  Result Receive(std::uint32_t timeoutMs) {
    const std::uint32_t start = clock.NowMs();
    const Result result =
        phone.link.ReceiveFrame({buffer.Data(), buffer.Size()}, length, timeoutMs);
    elapsedMs = clock.NowMs() - start;
    return result;
  }

  GuardedBuffer<std::uint8_t> buffer{100};
  std::uint32_t length = 0;
  std::uint32_t elapsedMs = 0;
};

TEST_F(ReceiveTiming, SilencePassesTheChannelsCodeUp) {
  EXPECT_EQ(Receive(250), Result::NoData);
  EXPECT_EQ(elapsedMs, 250u);
  EXPECT_EQ(Receive(0), Result::NoFrame);
  EXPECT_EQ(elapsedMs, 0u);
}

TEST_F(ReceiveTiming, ReadsSixtyFourBytesAtMost) {
  handset.Say(1, 1, Bytes(80, 0x31));
  EXPECT_EQ(Receive(100), Result::Success);
  EXPECT_EQ(length, 88u);
  EXPECT_EQ(handset.LargestRead(), 64u);
}

TEST_F(ReceiveTiming, AFrameStartedAtTheLimitGetsFiveHundredMillisecondsMore) {
  const Bytes frame = WireFrame(true, 1, 1, Hex("01 02 03 04"));
  // Its first ten bytes arrive exactly at the limit, its last ones at the extension's end.
  handset.SayRaw(Bytes(frame.begin(), frame.begin() + 10), 250);
  handset.SayRaw(Bytes(frame.begin() + 10, frame.end()), 500);
  EXPECT_EQ(Receive(250), Result::Success);
  EXPECT_EQ(elapsedMs, 750u);
  EXPECT_EQ(length, 12u);
}

TEST_F(ReceiveTiming, TheExtensionIsGivenOnce) {
  handset.SayRaw(Bytes(12, 0x7E), 250);
  // Each brings another flag when the extended limit has passed.
  handset.SayRaw(Bytes(12, 0x7E), 500);
  handset.SayRaw(Bytes(12, 0x7E), 1);
  EXPECT_EQ(Receive(250), Result::NoFrame);
  EXPECT_EQ(elapsedMs, 750u);
}

TEST_F(ReceiveTiming, FewerThanTenBytesAtTheLimitExtendNothing) {
  handset.SayRaw("7E 01 02 03", 250);
  EXPECT_EQ(Receive(250), Result::NoFrame);
  EXPECT_EQ(elapsedMs, 250u);
}

TEST_F(ReceiveTiming, SilenceWithinTheLimitEndsAStartedFrameWithTheChannelsCode) {
  handset.SayRaw("7E 01 02 03 04 05 06 07 08 09 0A 0B", 100);
  EXPECT_EQ(Receive(250), Result::NoData);
  EXPECT_EQ(elapsedMs, 250u);
  // What is there already is looked at before anything is read, and counts as seen.
  handset.SayRaw("0C 7E", 300);
  EXPECT_EQ(Receive(400), Result::Success);
  EXPECT_EQ(elapsedMs, 300u);
  EXPECT_EQ(length, 12u);
}

TEST_F(ReceiveTiming, AWholeFrameInTheRingNeedsNoTime) {
  Bytes two = WireFrame(true, 1, 1, Hex("01"));
  two = Joined(two, WireFrame(true, 2, 2, Hex("02")));
  handset.SayRaw(two, 5);
  EXPECT_EQ(Receive(10), Result::Success);
  EXPECT_EQ(Receive(0), Result::Success);
  EXPECT_EQ(elapsedMs, 0u);
  EXPECT_EQ(buffer.Hex(9), "00 00 00 00 00 09 02 02 02");
}

TEST_F(ReceiveTiming, AFrameIsCutToTheBuffer) {
  handset.Say(1, 1, Bytes(9000, 0x7E));
  // Escaped it is larger than any frame may be.
  EXPECT_EQ(Receive(250), Result::NoData);
  handset.Say(1, 1, Bytes(8992, 0x42));
  EXPECT_EQ(Receive(250), Result::BufferTooSmall);
  EXPECT_EQ(length, 100u);
  EXPECT_EQ(buffer.Hex(10), "00 00 00 00 23 28 01 01 42 42");
}

TEST_F(ReceiveTiming, WhatIsNoFrameInsideIsReportedAsSuch) {
  FrameId id{};
  // An escaped header that is shorter than eight bytes.
  handset.SayRaw("7E 7D 5E 01 02 03 04 05 06 7E");
  EXPECT_EQ(phone.link.ReceiveTyped(id, {buffer.Data(), 100}, length, 50), Result::NoAnswer);
  static_cast<void>(phone.link.Close());
  EXPECT_EQ(Receive(50), Result::PortNotOpen);
}

TEST_F(ReceiveTiming, NoiseFlagsAndFloodsEndByTheLimit) {
  for (const std::uint8_t byte : Hex("55 7E 7D")) {
    for (int i = 0; i < 1000; ++i) handset.SayRaw(Bytes(64, byte), 1);
    EXPECT_EQ(Receive(200), Result::NoFrame);
    EXPECT_LE(elapsedMs, 700u);
    phone.link.FrameRing().Clear();
    while (handset.UnreadBytes() > 0) {
      clock.SleepMs(1);
      static_cast<void>(phone.link.Channel().Clear());
    }
  }
}

}  // namespace
}  // namespace merovane::test
