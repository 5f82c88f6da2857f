#include "declared/phone_mode.h"

#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using namespace commands;
using ::testing::ElementsAre;

constexpr const char* kBigEndianStart = "7E 00 00 00 00 00 08 FE 01 7E";
constexpr const char* kLittleEndianStart = "7E 00 00 00 00 08 00 FE 01 7E";

struct StartData : CommandFixture {
  Result Receive(std::uint32_t capacity = 64, std::uint32_t timeoutMs = 300) {
    return RecvPhoneStartData(phone, data.Data(), capacity, &length, timeoutMs);
  }
  GuardedBuffer<std::uint8_t> data{64};
  std::uint32_t length = 77;
};

TEST_F(StartData, IsFoundAfterNoiseAndOverTwoReads) {
  InBothByteOrders([&] {
    const bool big = handset.Message().U16(1).Get()[1] == 1;
    const Bytes frame = Hex(big ? kBigEndianStart : kLittleEndianStart);
    handset.SayRaw("11 22 7E 33 7E 7E");
    handset.SayRaw(Bytes(frame.begin(), frame.begin() + 4));
    handset.SayRaw(Joined(Bytes(frame.begin() + 4, frame.end()), frame), 200);
    EXPECT_EQ(Receive(), Result::Success);
    EXPECT_EQ(length, 8u);
    EXPECT_EQ(data.Hex(8), ToHex(std::span(frame).subspan(1, 8)));
    EXPECT_TRUE(data.UntouchedFrom(8));
    // What came with it is dropped.
    EXPECT_EQ(Receive(), Result::NoUsefulData);
  });
}

TEST_F(StartData, ArrivesByteByByteOrSharesAFlagWithTheFrameBefore) {
  for (const std::uint8_t byte : Hex("7E 00 7E 00 00 00 00 00 08 FE 01 7E")) {
    handset.SayRaw(Bytes{byte}, 1);
  }
  EXPECT_EQ(Receive(), Result::Success);
  handset.SayRaw("7E 00 00 00 00 00 08 05 00 7E 00 00 00 00 00 08 FE 01 7E");
  EXPECT_EQ(Receive(), Result::Success);
}

TEST_F(StartData, ThatDoesNotComeEndsByTheLimit) {
  const auto receivesNone = [&] {
    ExpectTakes(300, Result::NoUsefulData, [&] { return Receive(); });
  };
  receivesNone();
  const std::string noneCame = ResultLine(Result::NoUsefulData);
  EXPECT_THAT(Log(), ElementsAre("RecvPhoneStartData:", noneCame));
  // A limit of 0 is over at once.
  EXPECT_EQ(Receive(64, 0), Result::NoUsefulData);
  EXPECT_EQ(SetPhoneStartModeEx(phone, 1, 0), Result::NoUsefulData);
  EXPECT_THAT(Log(), ElementsAre("RecvPhoneStartData:", noneCame, "SetPhoneStartModeEx:",
                                 "RecvPhoneStartData:", noneCame, noneCame));
  handset.SayRaw(kLittleEndianStart);
  receivesNone();
  SetByteOrder(false);
  handset.SayRaw(kBigEndianStart);
  receivesNone();
  // Endless flags, and a flood.
  for (int i = 0; i < 400; ++i) handset.SayRaw(Bytes(7000, i % 2 == 0 ? 0x7E : 0x55), 1);
  EXPECT_EQ(Receive(), Result::NoUsefulData);
  // A dead device, and none.
  handset.SetGone(true);
  receivesNone();
  static_cast<void>(phone.link.Close());
  receivesNone();
  EXPECT_TRUE(data.Untouched());
  EXPECT_EQ(length, 77u);
}

TEST_F(StartData, IsCutToTheCapacityAndLoggedWhole) {
  handset.SayRaw(kBigEndianStart);
  EXPECT_EQ(Receive(3), Result::Success);
  EXPECT_EQ(length, 3u);
  EXPECT_EQ(data.Hex(3), "00 00 00");
  EXPECT_TRUE(data.UntouchedFrom(3));
  EXPECT_THAT(Log(), ElementsAre("RecvPhoneStartData:", "<-- 7E 00 00 00 00 00 08 FE 01 7E",
                                 ResultLine(Result::Success)));
}

using PhoneMode = CommandFixture;

TEST_F(PhoneMode, TheStartModeWrapsAndItsResultIsNotLogged) {
  handset.Expect(0xFE, 72).Answer(0xFE, 72, "01 02 03 04 05 06 07 08 09 0A 0B 0C");
  EXPECT_EQ(SetPhoneStartMode(phone, 200), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 6u);
  EXPECT_THAT(LogNames(), ElementsAre("SetPhoneStartMode:"));
  // The subtype of a refusal.
  handset.Expect(0xFE, 2).Answer(0xFE, 2);
  EXPECT_EQ(SetPhoneStartMode(phone, 130), Result::Success);
}

TEST_F(PhoneMode, TheStartModeWaitsFourSecondsWithoutTheIncrement) {
  settings.receiveIncrementMs = 5000;
  handset.Expect(0xFE, 129).Silent();
  ExpectTakes(4000, Result::NoAnswer, [&] { return SetPhoneStartMode(phone, 1); });
  handset.Expect(12, 1).After(8900).Answer(12, 1);
  EXPECT_EQ(ChangePhoneMode(phone, 1), Result::Success);
}

TEST_F(PhoneMode, CampParametersGoIntoTheNextFramesSequenceOnly) {
  handset.Expect(0xFE, 129).Sequence(0x0000A3AF).Answer(0xFE, 129);
  EXPECT_EQ(SetModeAndCampParam(phone, 1, 0x1F, 0x5A3), Result::Success);
  handset.Expect(0xFE, 129).Sequence(0).Answer(0xFE, 129);
  EXPECT_EQ(SetPhoneStartMode(phone, 1), Result::Success);
  // A refused command leaves no word for the next frame.
  EXPECT_EQ(UsbChangeModeAndSetCampParam(phone, 1, 1, 1, nullptr), Result::InvalidParam);
  handset.Expect(12, 1).Sequence(0).Answer(12, 1);
  EXPECT_EQ(ChangePhoneMode(phone, 1), Result::Success);
  std::uint32_t answered = 9;
  handset.Expect(12, 5).Sequence(0x0000FFE1).Answer(12, 5, "00 00");
  EXPECT_EQ(UsbChangeModeAndSetCampParam(phone, 5, 0xF1, 0xFFFF, &answered), Result::Success);
  EXPECT_EQ(answered, 1u);
}

TEST_F(PhoneMode, TheAnsweredFlagIsWrittenOnSuccessOnly) {
  std::uint32_t answered = 9;
  handset.Expect(12, 1).Refuse();
  EXPECT_EQ(UsbChangePhoneMode(phone, 1, &answered), Result::Refused);
  EXPECT_EQ(answered, 9u);
  handset.Expect(12, 1).Answer(12, 1, "FF");
  EXPECT_EQ(UsbChangePhoneMode(phone, 1, &answered), Result::Success);
  EXPECT_EQ(answered, 0u);
}

TEST_F(PhoneMode, StartModeExSendsTheModeAfterTheStartFrame) {
  handset.SayRaw(kBigEndianStart, 90);
  handset.Expect(0xFE, 0x81).Answer(0xFE, 0x81);
  EXPECT_EQ(SetPhoneStartModeEx(phone, 1, 100), Result::Success);
  const std::string done = ResultLine(Result::Success);
  ExpectLogged({"SetPhoneStartModeEx:", "RecvPhoneStartData:", done, "SetPhoneStartMode:"});
  EXPECT_EQ(SetPhoneStartModeEx(phone, 1, 100), Result::NoUsefulData);
}

TEST_F(PhoneMode, ReadModeLeavesAShortModeAsItIs) {
  GuardedBuffer<std::uint8_t> data(6);
  handset.Expect(28, 0).Answer(28, 0, "01 02 03");
  EXPECT_EQ(ReadMode(phone, data.Data(), 6), Result::Success);
  EXPECT_EQ(data.Hex(4), "01 02 03 A5");
  handset.Expect(28, 0).Answer(28, 0, "01 02 03 25 05");
  EXPECT_EQ(ReadMode(phone, data.Data(), 3), Result::Success);
  EXPECT_TRUE(data.UntouchedFrom(3));
}

TEST_F(PhoneMode, ReadHandsOutTheNextFrameAndLogsItsResultOnly) {
  GuardedBuffer<std::uint8_t> data(12);
  std::uint32_t length = 0;
  const auto read = [&] {
    length = 12;
    return Read(phone, data.Data(), &length, 100);
  };
  handset.SayRaw("99 99");
  handset.Say(0x62, 0x03, "7E 7D 01");
  EXPECT_EQ(read(), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 13u);
  EXPECT_EQ(length, 11u);
  EXPECT_EQ(data.Hex(11), "00 00 00 00 00 0B 62 03 7E 7D 01");
  handset.Say(1, 1, "AA BB CC DD EE");
  EXPECT_EQ(read(), Result::BufferTooSmall);
  EXPECT_EQ(length, 12u);
  EXPECT_EQ(data.Hex(12), "00 00 00 00 00 0D 01 01 AA BB CC DD");
  EXPECT_EQ(read(), Result::NoFrame);
  EXPECT_EQ(length, 0u);
  handset.SayRaw("7E 01 02");
  EXPECT_EQ(read(), Result::NoFrame);
  EXPECT_THAT(Log(), ElementsAre(ResultLine(Result::Success), ResultLine(Result::BufferTooSmall),
                                 ResultLine(Result::NoFrame), ResultLine(Result::NoFrame)));
}

TEST_F(PhoneMode, WritePassesBytesAsTheyAreAndDropsNothing) {
  handset.Say(3, 3);
  handset.ExpectRaw("7E 41 54 0D").Answer(4, 4);
  const std::uint8_t bytes[] = {0x7E, 'A', 'T', 0x0D};
  EXPECT_EQ(Write(phone, bytes, 4), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 14u);
  EXPECT_THAT(Log(), ElementsAre());
  GuardedBuffer<std::uint8_t> data(16);
  for (const char* expected : {"03 03", "04 04"}) {
    std::uint32_t length = 16;
    EXPECT_EQ(Read(phone, data.Data(), &length, 100), Result::Success);
    EXPECT_TRUE(data.Hex(8).ends_with(expected)) << data.Hex(8);
  }
  handset.ExpectRaw("7E 41 54 0D").WriteFails();
  EXPECT_EQ(Write(phone, bytes, 4), Result::WriteFailed);
  static_cast<void>(phone.link.Close());
  std::uint32_t length = 16;
  EXPECT_EQ(Read(phone, data.Data(), &length, 100), Result::PortNotOpen);
  EXPECT_EQ(Write(phone, bytes, 4), Result::PortNotOpen);
}

}  // namespace
}  // namespace merovane::test
