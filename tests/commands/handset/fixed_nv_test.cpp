#include <cstring>

#include "commands/crc16.h"
#include "declared/identity.h"
#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using namespace commands;
using ::testing::ElementsAre;
using Info = QV_FIXED_NV_INFO;

constexpr const char* kImei = "490154203237518";
constexpr const char* kPackedImei = "4A 09 51 24 30 32 57 81";

TEST(Checksum, HasThePublishedCheckValue) {
  constexpr std::string_view kCheck = "123456789";
  EXPECT_EQ(Crc16Arc(Bytes(kCheck.begin(), kCheck.end())), 0xBB3D);
}

// A field of text, and where its bytes stand in the block.
struct TextField {
  std::uint8_t mask;
  std::uint32_t Info::*flag;
  char (Info::*text)[16];
  const char* value;
  std::size_t offset;
  const char* bytes;
  // A wrong text is not sent; otherwise it is written as zeros.
  bool checked;
};
const TextField kTextFields[] = {
    {0x01, &Info::write_imei1, &Info::imei1, kImei, 0, kPackedImei, true},
    {0x02, &Info::write_imei2, &Info::imei2, kImei, 8, kPackedImei, true},
    {0x04, &Info::write_bluetooth_address, &Info::bluetooth_address, "0911223344aA", 16,
     "AA 44 33 22 11 09", true},
    {0x40, &Info::write_second_address, &Info::second_address, "0011229344AA", 66,
     "00 11 22 93 44 AA", false},
    {0x10, &Info::write_imei3, &Info::imei3, kImei, 74, kPackedImei, false},
    {0x20, &Info::write_imei4, &Info::imei4, kImei, 82, kPackedImei, false}};

struct FixedNv : CommandFixture {
  // That field alone, without its terminator, followed by what must not be read.
  void PutOnly(const TextField& field, std::string_view text) {
    info = {};
    info.*field.flag = 2;
    std::memset(info.*field.text, '9', 16);
    std::memcpy(info.*field.text, text.data(), text.size());
  }
  // The block with these bytes at that offset, and its checksum.
  Bytes Block(std::size_t offset, const Bytes& bytes) {
    Bytes block(106);
    std::copy(bytes.begin(), bytes.end(), block.begin() + static_cast<std::ptrdiff_t>(offset));
    return Checked(block);
  }
  void ExpectWritten(std::uint8_t mask, const Bytes& payload) {
    handset.Expect(94, mask, payload).Answer(94, 1);
    EXPECT_EQ(FastWriteNvInfo(phone, &info), Result::Success);
  }
  Result Read(const Bytes& answer) {
    handset.Expect(94, 0xFF, "00 00").Answer(94, 1, answer);
    static_cast<void>(Log());
    return FastReadNvInfo(phone, &info);
  }
  Bytes Answered() {
    return Checked(handset.Message()
                       .Raw(kPackedImei)
                       .Raw("4A 09 51 24 30 32 57 F1")  // a damaged last digit
                       .Raw("AA 44 33 22 11 00")
                       .Raw(Bytes(24, 1))
                       .U32(0x01020304)
                       .Raw(Bytes(16, 2))
                       .Raw("0A 0B 9C 0D 0E 0F")
                       .Zeros(2)
                       .Raw(kPackedImei)
                       .Raw("0A 00 00 00 00 00 00 10")
                       .Zeros(16)
                       .Get());
  }

  GuardedBuffer<Info> record;
  Info& info = record[0];
};

TEST_F(FixedNv, WritesEachFieldUnderItsMask) {
  for (const TextField& field : kTextFields) {
    PutOnly(field, field.value);
    ExpectWritten(field.mask, Block(field.offset, Hex(field.bytes)));
  }
  InBothByteOrders([&] {
    info = {};
    info.write_parameter_block = 1;
    const Fields block = Fields(false).Raw(Bytes(24, 7)).U32(0x01020304).Raw(Bytes(16, 9));
    std::memcpy(info.parameter_block, block.Get().data(), 44);
    ExpectWritten(
        0x08,
        Block(22, handset.Message().Raw(Bytes(24, 7)).U32(0x01020304).Raw(Bytes(16, 9)).Get()));
    info = {};
    ExpectWritten(0, Block(0, {}));
  });
}

TEST_F(FixedNv, WithAWrongTextIsNotSentOrWrittenAsZeros) {
  for (const TextField& field : kTextFields) {
    for (const std::string_view text : {"", "0011223344A", "0011223344AG", "00:11:22:33:44"}) {
      SCOPED_TRACE(text);
      PutOnly(field, text);
      (info.*field.text)[text.size()] = '\0';
      if (field.checked) {
        EXPECT_EQ(FastWriteNvInfo(phone, &info), Result::InvalidParam);
        EXPECT_EQ(NvWriteDirect(phone, &info), Result::InvalidParam);
        EXPECT_THAT(Log(), ::testing::IsEmpty());
      } else {
        ExpectWritten(field.mask, Block(0, {}));
        static_cast<void>(Log());
      }
    }
  }
}

TEST_F(FixedNv, WrittenDirectlyHasFourFieldsAndNoChecksum) {
  info = {};
  info.write_imei1 = info.write_imei3 = info.write_second_address = 1;
  std::memcpy(info.imei1, kImei, 16);
  std::memcpy(info.imei3, kImei, 16);
  handset.Expect(94, 0x01, Joined(Hex(kPackedImei), Bytes(100))).Answer(94, 1);
  EXPECT_EQ(NvWriteDirect(phone, &info), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 238u);
  ExpectLogged({"NvWriteDirect"});
  handset.ExpectAnyPayload(94, 0x01).Silent();
  ExpectTakes(3000, Result::NoAnswer, [&] { return NvWriteDirect(phone, &info); });
  handset.ExpectAnyPayload(94, 0x11 | 0x40).Silent();
  ExpectTakes(3000, Result::NoAnswer, [&] { return FastWriteNvInfo(phone, &info); });
}

TEST_F(FixedNv, ReadFillsTextsAndLeavesTheFlags) {
  InBothByteOrders([&] {
    std::memset(&info, 0x55, sizeof info);
    EXPECT_EQ(Read(Answered()), Result::Success);
    ExpectLogged({"Read NV"});
    EXPECT_STREQ(info.imei1, kImei);
    EXPECT_STREQ(info.imei2, "49015420323751f") << "the high nibble is the later digit";
    EXPECT_STREQ(info.imei3, kImei);
    EXPECT_STREQ(info.imei4, "000000000000001");
    EXPECT_STREQ(info.bluetooth_address, "0011223344AA");
    EXPECT_STREQ(info.second_address, "0A0B9C0D0E0F");
    EXPECT_EQ(ToHex(std::span(info.parameter_block).subspan(23, 6)), "01 04 03 02 01 02");
    EXPECT_EQ(info.write_imei1, 0x55555555u);
    EXPECT_EQ(info.write_second_address, 0x55555555u);
  });
}

TEST_F(FixedNv, ReadOfADamagedOrEmptyBlockLeavesTheRecordAndTheLog) {
  InBothByteOrders([&] {
    const Bytes whole = Answered();
    settings.usefulLog = false;
    for (std::size_t length = 0; length < whole.size(); ++length) {
      const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
      EXPECT_EQ(Read(cut), length < 2 ? Result::NoData : Result::ChecksumMismatch) << length;
    }
    settings.usefulLog = true;
    EXPECT_EQ(Read({}), Result::NoData);
    EXPECT_THAT(LogNames(), ElementsAre("Read NV"));
    Bytes damaged = whole;
    damaged[90] ^= 0x80;
    EXPECT_EQ(Read(damaged), Result::ChecksumMismatch);
    EXPECT_THAT(LogNames(), ElementsAre("Read NV"));
    damaged = whole;
    std::swap(damaged[106], damaged[107]);
    EXPECT_EQ(Read(damaged), Result::ChecksumMismatch) << "a checksum in the other byte order";
    EXPECT_TRUE(record.Untouched());
  });
}

TEST_F(FixedNv, ReadOfABlockOfAnotherLengthTakesWhatIsThere) {
  Bytes block = Answered();
  block.resize(108);
  EXPECT_EQ(Read(Checked(block)), Result::Success);
  block.resize(109);
  EXPECT_EQ(Read(Checked(block)), Result::BufferTooSmall);
  EXPECT_STREQ(info.imei1, kImei);
  EXPECT_EQ(Read(Checked(Hex("4A 09"))), Result::Success);
  EXPECT_STREQ(info.bluetooth_address, "000000000000");
  EXPECT_EQ(std::string(info.imei1, 3), "490");
}

TEST_F(FixedNv, ReadThatFailsReadsAsAnEmptyBlock) {
  std::memset(&info, 0x55, sizeof info);
  handset.Expect(94, 0xFF, "00 00").Silent();
  ExpectTakes(3000, Result::NoAnswer, [&] { return FastReadNvInfo(phone, &info); });
  EXPECT_STREQ(info.imei4, "000000000000000");
  EXPECT_STREQ(info.second_address, "000000000000");
  EXPECT_EQ(info.parameter_block[43], 0);
  EXPECT_EQ(info.write_imei4, 0x55555555u);
}

}  // namespace
}  // namespace merovane::test
