#include "support/command_fixture.h"

namespace merovane::test {
namespace {

struct ReceiveTiming : CommandFixture {
  // One frame within the limit; `elapsedMs` is what that took.
  Result Receive(std::uint32_t timeoutMs) {
    const std::uint32_t start = clock.NowMs();
    const Frame frame = phone.link.ReceiveFrame(timeoutMs);
    elapsedMs = clock.NowMs() - start;
    bytes.assign(frame.Bytes().begin(), frame.Bytes().end());
    return frame.Why();
  }

  Bytes bytes;
  std::uint32_t elapsedMs = 0;
};

TEST_F(ReceiveTiming, SilencePassesTheChannelsCodeUp) {
  EXPECT_EQ(Receive(250), Result::NoData);
  EXPECT_EQ(elapsedMs, 250u);
  EXPECT_EQ(Receive(0), Result::NoFrame);
  EXPECT_EQ(elapsedMs, 0u);
  // A dead channel has nothing to wait for.
  handset.SetGone(true);
  EXPECT_EQ(Receive(250), Result::NoData);
  EXPECT_EQ(elapsedMs, 1u);
}

TEST_F(ReceiveTiming, ReadsSixtyFourBytesAtMost) {
  handset.Say(1, 1, Bytes(80, 0x31));
  EXPECT_EQ(Receive(100), Result::Success);
  EXPECT_EQ(bytes.size(), 88u);
  EXPECT_EQ(handset.LargestRead(), 64u);
}

TEST_F(ReceiveTiming, AFrameStartedAtTheLimitGetsFiveHundredMillisecondsMore) {
  const Bytes frame = WireFrame(true, 1, 1, Hex("01 02 03 04"));
  // Its first ten bytes arrive exactly at the limit, its last ones at the extension's end.
  handset.SayRaw(Bytes(frame.begin(), frame.begin() + 10), 250);
  handset.SayRaw(Bytes(frame.begin() + 10, frame.end()), 500);
  EXPECT_EQ(Receive(250), Result::Success);
  EXPECT_EQ(elapsedMs, 750u);
  EXPECT_EQ(bytes.size(), 12u);
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
  EXPECT_EQ(bytes.size(), 12u);
}

TEST_F(ReceiveTiming, AWholeFrameInTheRingNeedsNoTime) {
  Bytes two = WireFrame(true, 1, 1, Hex("01"));
  two = Joined(two, WireFrame(true, 2, 2, Hex("02")));
  handset.SayRaw(two, 5);
  EXPECT_EQ(Receive(10), Result::Success);
  EXPECT_EQ(Receive(0), Result::Success);
  EXPECT_EQ(elapsedMs, 0u);
  EXPECT_EQ(ToHex(bytes), "00 00 00 00 00 09 02 02 02");
}

TEST_F(ReceiveTiming, TheLargestFramesArriveWholeAndLargerOnesNotAtAll) {
  handset.Say(1, 1, Bytes(9207, 0x11));
  EXPECT_EQ(Receive(250), Result::NoData);
  handset.Say(1, 1, Bytes(9206, 0x11));
  EXPECT_EQ(Receive(250), Result::Success);
  EXPECT_EQ(bytes.size(), 9214u);
}

TEST_F(ReceiveTiming, AFrameShorterThanAHeaderIsNoAnswer) {
  // An escaped flag inside.
  handset.SayRaw("7E 7D 5E 01 02 03 04 05 06 7E");
  EXPECT_EQ(phone.link.ReceiveTyped(50).Why(), Result::NoAnswer);
  static_cast<void>(phone.link.Close());
  EXPECT_EQ(Receive(50), Result::PortNotOpen);
}

TEST_F(ReceiveTiming, FieldsOfAnAnswerReadInTheHandsetsOrderAndZeroWhereNothingCame) {
  InBothByteOrders([&] {
    handset.Expect(1, 1).Answer(1, 1, handset.Message().U16(0x0102).U32(0x03040506).Raw(Hex("07")));
    const Answer answer = phone.link.SendAndWaitSame({1, 1}, {}, 100);
    EXPECT_EQ(answer.U16(0), 0x0102u);
    EXPECT_EQ(answer.U32(2), 0x03040506u);
    const bool big = phone.link.Order().IsBig();
    EXPECT_EQ(answer.U16(6), big ? 0x0700u : 0x0007u);
    EXPECT_EQ(answer.U32(6), big ? 0x07000000u : 0x00000007u);
    EXPECT_EQ(answer.U32(7), 0u);
    handset.Expect(1, 1).Refuse();
    const Answer refused = phone.link.SendAndWaitSame({1, 1}, {}, 100);
    EXPECT_EQ(refused.Why(), Result::Refused);
    EXPECT_TRUE(refused.Payload().empty());
    EXPECT_EQ(refused.U16(0), 0u);
  });
}

TEST_F(ReceiveTiming, WaitsCarryTheIncrementWithinTheirBounds) {
  const auto waits = [&](std::uint32_t incrementMs, std::uint32_t timeoutMs) {
    settings.receiveIncrementMs = incrementMs;
    return settings.WithIncrement(timeoutMs);
  };
  EXPECT_EQ(waits(200, 1000), 1200u);
  // What a settings file with -300 reads as.
  EXPECT_EQ(waits(UINT32_MAX - 299, 1000), 700u);
  EXPECT_EQ(waits(UINT32_MAX - 299, 0), 0u);
  EXPECT_EQ(waits(INT32_MAX, UINT32_MAX), UINT32_MAX);
  settings.receiveIncrementMs = UINT32_MAX - 299;
  const std::uint32_t start = clock.NowMs();
  EXPECT_EQ(phone.link.WaitForIncrement({1, 1}).Why(), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs(), start);
}

TEST_F(ReceiveTiming, NoiseFlagsAndFloodsEndByTheLimit) {
  for (const std::uint8_t byte : Hex("55 7E 7D")) {
    for (int i = 0; i < 1000; ++i) handset.SayRaw(Bytes(64, byte), 1);
    EXPECT_EQ(Receive(200), Result::NoFrame);
    EXPECT_LE(elapsedMs, 700u);
    // The next request drops what is left.
    clock.SleepMs(2000);
    handset.Expect(1, 1);
    EXPECT_EQ(phone.link.SendFrame({1, 1}), Result::Success);
    EXPECT_EQ(handset.UnreadBytes(), 0u);
  }
}

}  // namespace
}  // namespace merovane::test
