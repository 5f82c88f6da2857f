// Answers that are longer or shorter than asked for, or tell of a failure.
#include "declared/identity.h"
#include "declared/memory.h"
#include "declared/peripherals.h"
#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using namespace commands;
using ::testing::Contains;
using ::testing::ElementsAre;

struct HandsetAnswers : CommandFixture {
  void Answered(std::uint8_t type, std::uint8_t subtype, std::uint8_t answerSubtype,
                const Payload& payload) {
    static_cast<void>(Log());
    handset.ExpectAnyPayload(type, subtype).Answer(type, answerSubtype, payload);
  }
  // What was delivered, and that nothing stands after it.
  void ExpectOut(const char* hex) {
    const std::size_t bytes = Hex(hex).size();
    EXPECT_EQ(out.Hex(bytes), hex);
    EXPECT_TRUE(out.UntouchedFrom(bytes));
  }

  GuardedBuffer<std::uint8_t> out{16};
  std::uint32_t length = 77;
};

TEST_F(HandsetAnswers, OfFlashItemsAreCutToWhatWasAskedFor) {
  const auto read = [&](const char* answer) {
    Answered(13, 2, 0, answer);
    return ReadFlash(phone, 5, out.Data(), 4, &length, 10);
  };
  EXPECT_EQ(read("00 05 00 04 01 02 03 04 05 06"), Result::BufferTooSmall);
  ExpectOut("01 02 03 04");
  EXPECT_EQ(length, 4u);
  EXPECT_EQ(read("00 05 00 04 09 08"), Result::Success);
  EXPECT_EQ(length, 2u);
  EXPECT_EQ(read("00 05 00 04"), Result::WrongDataLength);
  EXPECT_EQ(length, 0u);
  EXPECT_THAT(LogText(), Contains(ResultLine(Result::WrongDataLength)));
}

TEST_F(HandsetAnswers, OfNvItemsAreCutAndOnesWithoutAnItemCountAsTooLong) {
  Answered(13, 0, 0, "00 07 01 02 03");
  EXPECT_EQ(ReadNv(phone, 7, out.Data(), 2, &length, 10), Result::BufferTooSmall);
  EXPECT_EQ(length, 2u);
  ExpectOut("01 02");
  Answered(13, 0, 0, "00");
  EXPECT_EQ(ReadNv(phone, 7, out.Data(), 5, &length, 10), Result::BufferTooSmall);
  EXPECT_EQ(length, 5u);
  ExpectOut("00 00 00 00 00");
}

TEST_F(HandsetAnswers, OfPartsOfNvItemsAreCheckedWithTheItemId) {
  const auto read = [&](std::uint32_t offset, std::uint32_t bytes, std::uint32_t capacity) {
    Answered(13, 0, 0, "00 07 01 02 03 04");
    return ReadNvFromHandset(phone, 7, offset, bytes, out.Data(), capacity, &length);
  };
  EXPECT_EQ(read(7, 0, 16), Result::InvalidParam);
  EXPECT_EQ(read(3, 4, 16), Result::InvalidParam);
  EXPECT_EQ(read(6, UINT32_MAX, 16), Result::InvalidParam);
  EXPECT_TRUE(out.Untouched());
  EXPECT_EQ(length, 77u);
  EXPECT_EQ(read(1, 4, 2), Result::Success);
  EXPECT_EQ(length, 2u);
  ExpectOut("02 03");
  // Two bytes further than the item goes.
  EXPECT_EQ(read(2, 4, 16), Result::Success);
  ExpectOut("03 04 00 00");
}

TEST_F(HandsetAnswers, ThatAreTooLongFillTheBufferAndNoMore) {
  Answered(11, 0, 0, Bytes(300, 0x11));
  EXPECT_EQ(ReadRegister(phone, 0, 0, out.Data(), 3), Result::Success);
  ExpectOut("11 11 11");
  Answered(93, 3, 3, Bytes(101, 0x22));
  EXPECT_EQ(GetLcdIcDriverID(phone, 1, out.Data(), 4, &length), Result::BufferTooSmall);
  EXPECT_EQ(length, 101u);
  ExpectOut("22 22 22 22");
  GuardedBuffer<std::uint8_t> large(101);
  Answered(93, 3, 3, Bytes(101, 0x22));
  EXPECT_EQ(GetLcdIcDriverID(phone, 1, large.Data(), 101, &length), Result::BufferTooSmall);
  EXPECT_TRUE(large.UntouchedFrom(100));
  Answered(0, 0, 0, Bytes(101, 0x33));
  EXPECT_EQ(GetMSVersion(phone, reinterpret_cast<char*>(out.Data()), 5), Result::Success);
  ExpectOut("33 33 33 33 33");
}

TEST_F(HandsetAnswers, WithTooManyFlashRegionsAreImplausible) {
  InBothByteOrders([&] {
    GuardedBuffer<QV_FLASH_INFO> info;
    Answered(93, 4, 4, handset.Message().U32(1).U32(2).U32(32).Zeros(372));
    EXPECT_EQ(GetFlashInfo(phone, info.Data()), Result::ParseFailed);
    EXPECT_TRUE(info.Untouched());
    EXPECT_THAT(LogNames(), ElementsAre("GetFlashInfo:"));
    Fields full = handset.Message().U32(1).U32(2).U32(31);
    for (std::uint32_t word = 0; word < 93; ++word) full.U32(word);
    Answered(93, 4, 4, full.Raw("EE EE"));
    EXPECT_EQ(GetFlashInfo(phone, info.Data()), Result::Success);
    EXPECT_EQ(info[0].regions[30].words[2], 92u);
  });
}

TEST_F(HandsetAnswers, OfThe7310KFillThreeWordsOrTen) {
  InBothByteOrders([&] {
    const std::uint16_t words[10] = {};
    GuardedBuffer<std::uint16_t> answered(10);
    const Bytes answer = handset.Message().U16(1).U16(2).U16(3).Zeros(14).Get();
    for (const std::ptrdiff_t bytes : {5, 6, 19}) {
      Answered(37, 9, 9, Bytes(answer.begin(), answer.begin() + bytes));
      EXPECT_EQ(Send7310KCommand(phone, 9, words, answered.Data(), 10), Result::Success);
      EXPECT_TRUE(answered.UntouchedFrom(bytes == 5 ? 0 : 3)) << bytes;
    }
    EXPECT_EQ(answered[2], 3u);
  });
}

TEST_F(HandsetAnswers, OfThe7310KAreAwaitedWithoutTheIncrement) {
  settings.receiveIncrementMs = 500;
  GuardedBuffer<std::uint16_t> answered(10);
  const auto receives = [&] { return Recv7310KCommand(phone, 4, answered.Data(), 0); };
  ExpectTakes(1000, Result::NoAnswer, receives);
  EXPECT_TRUE(answered.Untouched());
  ExpectLogged({"Recv7310KCommand"}, Result::NoAnswer);
  handset.Say(37, 4, handset.Message().U16(5).Zeros(18), 40);
  EXPECT_EQ(Recv7310KCommand(phone, 4, answered.Data(), 39), Result::NoAnswer);
  EXPECT_EQ(Recv7310KCommand(phone, 4, answered.Data(), 1), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 236u);
  EXPECT_EQ(answered[0], 5u);
}

TEST_F(HandsetAnswers, WithProductionBlocksAreCheckedBeforeTheyAreDelivered) {
  const auto read = [&](const Bytes& answer) {
    Answered(95, 0x81, 1, answer);
    length = 77;
    return FastReadProduct(phone, out.Data(), 16, &length);
  };
  InBothByteOrders([&] {
    std::fill_n(out.Data(), 16, std::uint8_t{0xA5});
    Bytes damaged = Checked(Hex("01 02 03"));
    damaged[1] ^= 1;
    EXPECT_EQ(read(damaged), Result::ChecksumMismatch);
    EXPECT_THAT(LogNames(), ElementsAre("Read Product Info"));
    EXPECT_EQ(length, 0u);
    EXPECT_TRUE(out.Untouched());
    EXPECT_EQ(read({}), Result::WrongDataLength);
    EXPECT_THAT(LogText(), Contains(ResultLine(Result::WrongDataLength)));
    EXPECT_EQ(read(Hex("00 00")), Result::Success) << "the checksum of nothing";
    EXPECT_EQ(length, 0u);
    EXPECT_EQ(read(Checked(Bytes(998, 7))), Result::BufferTooSmall);
    EXPECT_EQ(length, 998u);
    EXPECT_EQ(read(Checked(Bytes(999, 7))), Result::ChecksumMismatch) << "cut after its place";
  });
  GuardedBuffer<std::uint8_t> small(4);
  Answered(96, 0x81, 1, Checked(Hex("01 02 03 04 05")));
  EXPECT_EQ(FastReadVerSion(phone, small.Data(), 4, &length), Result::BufferTooSmall);
  EXPECT_EQ(length, 5u);
  EXPECT_EQ(small.Hex(4), "01 02 03 04");
}

TEST_F(HandsetAnswers, WithTheImeiCountAreAwaitedForTheIncrementOnly) {
  std::uint32_t count = 9;
  const auto read = [&](const char* answer) {
    handset.Expect(97, 0x80, "00 00").Answer(97, 1, answer);
    return FastReaIMEICount(phone, &count);
  };
  settings.receiveIncrementMs = 0;
  EXPECT_EQ(read("02 00 00 00 00 00 00 00 00 00"), Result::NoAnswer);
  EXPECT_EQ(count, 9u);
  settings.receiveIncrementMs = 50;
  InBothByteOrders([&] {
    EXPECT_EQ(read("02 00 00 00 00 00 00 00 00 00"), Result::Success);
    EXPECT_EQ(count, 2u) << "not in the handset's byte order";
    EXPECT_EQ(read(""), Result::WrongDataLength);
    EXPECT_EQ(count, 0u);
    for (const char* answer : {"04", "04 00 00 00 00 00 00 00 00"}) {
      EXPECT_EQ(read(answer), Result::WrongDataLength);
      EXPECT_EQ(count, 4u);
    }
  });
}

TEST_F(HandsetAnswers, OfGpsMustRepeatTheRequest) {
  InBothByteOrders([&] {
    const auto answered = [&](std::uint32_t first, std::uint32_t second) {
      Answered(35, 0, 0, handset.Message().U32(first).U32(second).Raw(Bytes(44, 1)).Zeros(212));
    };
    answered(3, 0);
    EXPECT_EQ(GpsOpen(phone, 1), Result::GpsFailed);
    answered(0, 9);
    EXPECT_EQ(GpsOpen(phone, 1), Result::Success) << "only the command counts";
    const Bytes block(44, 5);
    answered(4, 43);
    EXPECT_EQ(GpsWriteNv(phone, block.data()), Result::GpsFailed);
    GuardedBuffer<std::uint8_t> read(44);
    answered(4, 44);
    EXPECT_EQ(GpsReadNv(phone, read.Data()), Result::GpsFailed);
    EXPECT_EQ(read.Hex(44), ToHex(Bytes(44, 1)));
    EXPECT_THAT(LogText(), Contains(ResultLine(Result::GpsFailed)));
    Answered(35, 0, 0, "00 00 00 63 00 00 00 2C 01");
    EXPECT_EQ(GpsReadNv(phone, read.Data()), Result::Success) << "too short to be looked at";
    EXPECT_EQ(read.Hex(3), "01 00 00");
  });
}

}  // namespace
}  // namespace merovane::test
