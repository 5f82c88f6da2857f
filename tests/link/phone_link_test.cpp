#include "link/phone_link.h"

#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using ::testing::ElementsAre;

struct Exchanges : CommandFixture {
  Result Ask(std::uint32_t capacity, std::uint32_t timeoutMs = 100) {
    const std::uint32_t start = clock.NowMs();
    const Result result = phone.link.SendAndWait({13, 2}, {13, 0}, Hex("00 05 7E 7D"),
                                                 {answer.Data(), capacity}, &length, timeoutMs);
    elapsedMs = clock.NowMs() - start;
    return result;
  }
  Exchange& ExpectAsked() { return handset.Expect(13, 2, "00 05 7E 7D"); }

  GuardedBuffer<std::uint8_t> answer{64};
  std::uint32_t length = 77;
  std::uint32_t elapsedMs = 0;
};

TEST_F(Exchanges, FindTheAnswerAmongOthersInPieces) {
  InBothByteOrders([&] {
    ExpectAsked()
        .Answer(13, 1)
        .Answer(12, 0, "01")
        .Raw("99 99")
        .Answer(13, 0, "7E 7D 00 05")
        .Split(3);
    EXPECT_EQ(Ask(64), Result::Success);
    EXPECT_EQ(length, 4u);
    EXPECT_EQ(answer.Hex(4), "7E 7D 00 05");
    EXPECT_TRUE(answer.UntouchedFrom(4));
  });
}

TEST_F(Exchanges, AreLoggedAsRequestAndMatchedAnswer) {
  ExpectAsked().Answer(13, 1).Answer(13, 0, "7E");
  EXPECT_EQ(Ask(64), Result::Success);
  EXPECT_THAT(
      Log(), ElementsAre("Clear Port Buffer", "--> 7E 00 00 00 00 00 0C 0D 02 00 05 7D 5E 7D 5D 7E",
                         "<-- 7E 00 00 00 00 00 09 0D 00 7E 7E"));
  settings.usefulLog = false;
  ExpectAsked().Answer(13, 0);
  EXPECT_EQ(Ask(64), Result::Success);
  EXPECT_THAT(Log(), ElementsAre());
}

TEST_F(Exchanges, CutTheAnswerToTheBufferAndReportItsWholeLength) {
  ExpectAsked().Answer(13, 0, Bytes(20, 0x11));
  EXPECT_EQ(Ask(16), Result::Success);
  EXPECT_EQ(length, 20u);
  EXPECT_TRUE(answer.UntouchedFrom(16));
  ExpectAsked().Answer(13, 0);
  EXPECT_EQ(Ask(16), Result::Success);
  EXPECT_EQ(length, 0u);
}

TEST_F(Exchanges, EndAtOnceWhenTheHandsetRefuses) {
  ExpectAsked().Refuse().Answer(13, 0, "01");
  EXPECT_EQ(Ask(64), Result::Refused);
  EXPECT_EQ(elapsedMs, 0u);
  EXPECT_EQ(length, 77u);
  EXPECT_TRUE(answer.Untouched());
  // Of another type it is none, and where it is awaited it is the answer.
  ExpectAsked().Answer(14, 2).Answer(13, 0);
  EXPECT_EQ(Ask(64), Result::Success);
  handset.Expect(13, 2).Answer(13, 2);
  EXPECT_EQ(phone.link.SendAndWaitSame({13, 2}, {}, 100), Result::Success);
}

TEST_F(Exchanges, WaitForTheLimitAndTheIncrement) {
  settings.receiveIncrementMs = 200;
  ExpectAsked().After(1199).Answer(13, 0);
  EXPECT_EQ(Ask(64, 1000), Result::Success);
  ExpectAsked().Silent();
  EXPECT_EQ(Ask(64, 1000), Result::NoAnswer);
  EXPECT_EQ(elapsedMs, 1200u);
  // What a settings file with -300 reads as.
  settings.receiveIncrementMs = UINT32_MAX - 299;
  ExpectAsked().Silent();
  EXPECT_EQ(Ask(64, 1000), Result::NoAnswer);
  EXPECT_EQ(elapsedMs, 700u);
  settings.receiveIncrementMs = INT32_MAX;
  ExpectAsked().After(100'000).Answer(13, 0);
  EXPECT_EQ(Ask(64, UINT32_MAX), Result::Success) << "the sum must not wrap";
}

TEST_F(Exchanges, OtherFramesDoNotProlongTheWait) {
  Exchange& exchange = ExpectAsked();
  for (int i = 0; i < 500; ++i) exchange.After(7).Answer(12, 0, "01 02 03");
  EXPECT_EQ(Ask(64, 1000), Result::NoAnswer);
  EXPECT_LE(elapsedMs, 1000u);
}

TEST_F(Exchanges, RefuseMissingBuffersWithNothingSent) {
  EXPECT_EQ(Ask(0), Result::InvalidParam);
  EXPECT_EQ(phone.link.SendAndWait({1, 1}, {1, 1}, {}, {answer.Data(), 64}, nullptr, 10),
            Result::InvalidParam);
  EXPECT_THAT(Log(), ElementsAre());
}

TEST_F(Exchanges, LookOnlyAtWhatCameAfterTheRequest) {
  handset.Say(13, 0, "01");
  std::array<std::uint8_t, 64> frame;
  ASSERT_EQ(phone.link.ReceiveFrame(frame, length, 10), Result::Success);
  // Half a frame in the ring, a whole one in the channel.
  handset.SayRaw("7E 00 00 00 00 00 09 0D 00 01");
  EXPECT_EQ(phone.link.ReceiveFrame(frame, length, 10), Result::NoData);
  handset.Say(13, 0, "02");
  ExpectAsked().Answer(13, 0, "03");
  EXPECT_EQ(Ask(64), Result::Success);
  EXPECT_EQ(answer.Hex(1), "03");
}

TEST_F(Exchanges, ReportAFailedWriteAndAClosedPort) {
  ExpectAsked().WriteFails();
  EXPECT_EQ(Ask(64), Result::WriteFailed);
  EXPECT_THAT(Log(), ElementsAre("Clear Port Buffer"));
  ASSERT_EQ(phone.link.Close(), Result::Success);
  EXPECT_EQ(Ask(64), Result::PortNotOpen);
  EXPECT_EQ(phone.link.WaitForAnswer({1, 1}, {answer.Data(), 64}, &length, 200), Result::NoAnswer);
}

TEST_F(Exchanges, OfAVanishingDeviceEndByTheLimit) {
  ExpectAsked().Raw("7E 00 00").Vanish();
  EXPECT_EQ(Ask(64), Result::NoAnswer);
  EXPECT_EQ(elapsedMs, 100u);
}

TEST_F(Exchanges, CarryASequenceOnceAndTheLargestPayloads) {
  phone.link.SetNextSequence(0x7E7D0102);
  handset.Expect(1, 1).Sequence(0x7E7D0102);
  EXPECT_EQ(phone.link.SendFrame({1, 1}), Result::Success);
  const Bytes payload(70000, 0x7E);
  handset.ExpectRaw(WireFrame(true, 1, 1, payload));
  EXPECT_EQ(phone.link.SendFrame({1, 1}, payload), Result::Success);
  handset.Expect(1, 1).Answer(1, 1, Bytes(9206, 0x11));
  std::vector<std::uint8_t> large(9216);
  EXPECT_EQ(phone.link.SendAndWait({1, 1}, {1, 1}, {}, large, &length, 100), Result::Success);
  EXPECT_EQ(length, 9206u);
}

TEST_F(Exchanges, AFrameTooLongForTheRingIsLostAndTheNextOneFound) {
  ExpectAsked().Answer(13, 0, Bytes(9207, 0x11)).Answer(13, 0, "05");
  EXPECT_EQ(Ask(64), Result::Success);
  EXPECT_EQ(length, 1u);
}

}  // namespace
}  // namespace merovane::test
