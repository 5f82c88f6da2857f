#include "commands/test/fixed_nv.h"

#include <cstring>

#include "commands/crc16.h"
#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using namespace commands;
using ::testing::ElementsAre;

constexpr const char* kImei = "490154203237518";
constexpr const char* kPackedImei = "4A 09 51 24 30 32 57 81";

TEST(Checksum, HasThePublishedCheckValue) {
  constexpr std::string_view kCheck = "123456789";
  EXPECT_EQ(Crc16Arc(Bytes(kCheck.begin(), kCheck.end())), 0xBB3D);
  EXPECT_EQ(Crc16Arc({}), 0);
}

struct FixedNv : CommandFixture {
  // A text field without its terminator, followed by what must not be read.
  template <std::size_t kBytes>
  static void Put(char (&field)[kBytes], std::string_view text, char behind = '\x7F') {
    std::memset(field, behind, kBytes);
    std::memcpy(field, text.data(), text.size());
  }

  // The block with these bytes at that offset, and its checksum.
  static Bytes Block(std::size_t offset, const Bytes& bytes) {
    Bytes block(106);
    std::copy(bytes.begin(), bytes.end(), block.begin() + static_cast<std::ptrdiff_t>(offset));
    return WithChecksum(block);
  }

  Result Write(std::uint8_t mask, const Bytes& payload) {
    handset.Expect(94, mask, payload).Answer(94, 1);
    return FastWriteNvInfo(phone, record.Data());
  }

  void SetUp() override {
    CommandFixture::SetUp();
    std::memset(record.Data(), 0, sizeof info);
  }

  GuardedBuffer<QV_FIXED_NV_INFO> record;
  QV_FIXED_NV_INFO& info = record[0];
};

TEST_F(FixedNv, WritesEachFieldUnderItsMask) {
  InBothByteOrders([&] {
    info = {};
    info.write_imei1 = 1;
    Put(info.imei1, kImei, '9');  // a 16th digit
    EXPECT_EQ(Write(0x01, Block(0, Hex(kPackedImei))), Result::Success);
    info = {};
    info.write_imei2 = 2;
    Put(info.imei2, kImei);
    EXPECT_EQ(Write(0x02, Block(8, Hex(kPackedImei))), Result::Success);
    info = {};
    info.write_bluetooth_address = 1;
    Put(info.bluetooth_address, "0011223344aA");
    EXPECT_EQ(Write(0x04, Block(16, Hex("AA 44 33 22 11 00"))), Result::Success);
    info = {};
    info.write_parameter_block = 1;
    for (std::size_t at = 0; at < 44; ++at)
      info.parameter_block[at] = static_cast<std::uint8_t>(at);
    Bytes parameters(info.parameter_block, info.parameter_block + 44);
    if (handset.Message().U16(1).Get()[0] == 0)
      std::reverse(parameters.begin() + 24, parameters.begin() + 28);
    EXPECT_EQ(Write(0x08, Block(22, parameters)), Result::Success);
    info = {};
    info.write_second_address = 1;
    Put(info.second_address, "0011223344AA");
    EXPECT_EQ(Write(0x40, Block(66, Hex("00 11 22 33 44 AA"))), Result::Success);
    info = {};
    info.write_imei3 = 1;
    Put(info.imei3, kImei);
    EXPECT_EQ(Write(0x10, Block(74, Hex(kPackedImei))), Result::Success);
    info = {};
    info.write_imei4 = 1;
    Put(info.imei4, kImei);
    EXPECT_EQ(Write(0x20, Block(82, Hex(kPackedImei))), Result::Success);
    info = {};
    EXPECT_EQ(Write(0, Block(0, {})), Result::Success);
  });
}

TEST_F(FixedNv, WithAWrongTextIsNotSentOrWrittenAsZeros) {
  const auto refused = [&] {
    EXPECT_EQ(FastWriteNvInfo(phone, &info), Result::InvalidParam);
    EXPECT_EQ(NvWriteDirect(phone, &info), Result::InvalidParam);
    info = {};
  };
  for (const char* imei : {"", "49015420323751", "49015420323751x", "a90154203237518"}) {
    info.write_imei1 = 1;
    Put(info.imei1, std::string(imei) + '\0');
    refused();
    info.write_imei2 = 1;
    Put(info.imei2, std::string(imei) + '\0');
    refused();
  }
  for (const char* address : {"", "0011223344A", "0011223344AG", "00:11:22:33:44"}) {
    info.write_bluetooth_address = 1;
    Put(info.bluetooth_address, std::string(address) + '\0');
    refused();
  }
  EXPECT_THAT(Log(), ::testing::IsEmpty());

  info.write_imei3 = info.write_imei4 = info.write_second_address = 1;
  EXPECT_EQ(Write(0x70, Block(0, {})), Result::Success);
  Put(info.imei4, kImei);
  EXPECT_EQ(Write(0x70, Block(82, Hex(kPackedImei))), Result::Success);
}

TEST_F(FixedNv, WrittenDirectlyHasFourFieldsAndNoChecksum) {
  info.write_imei1 = info.write_imei3 = info.write_second_address = 1;
  Put(info.imei1, kImei);
  Put(info.imei3, kImei);
  Put(info.second_address, "0011223344AA");
  handset.Expect(94, 0x01, Joined(Hex(kPackedImei), Bytes(100))).Answer(94, 1);
  const Result result = NvWriteDirect(phone, &info);
  EXPECT_EQ(OperationOf(result), 238u);
  EXPECT_THAT(LogText(),
              ElementsAre("NvWriteDirect", "Clear Port Buffer", ResultLine(Result::Success)));
  handset.ExpectAnyPayload(94, 0x01).Silent();
  const std::uint32_t before = clock.NowMs();
  EXPECT_EQ(NvWriteDirect(phone, &info), Result::NoAnswer);
  handset.ExpectAnyPayload(94, 0x11 | 0x40).Silent();
  EXPECT_EQ(FastWriteNvInfo(phone, &info), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs() - before, 6000u);
}

struct FixedNvRead : FixedNv {
  Result Read(const Bytes& answer) {
    handset.Expect(94, 0xFF, "00 00").Answer(94, 1, answer);
    static_cast<void>(Log());
    return FastReadNvInfo(phone, record.Data());
  }
  Bytes Answered() {
    return WithChecksum(handset.Message()
                            .Raw(kPackedImei)
                            .Raw("4A 09 51 24 30 32 57 F1")  // a damaged last digit
                            .Raw("AA 44 33 22 11 00")
                            .Raw(Bytes(24, 1))
                            .U32(0x01020304)
                            .Raw(Bytes(16, 2))
                            .Raw("0A 0B 0C 0D 0E 0F")
                            .Zeros(2)
                            .Raw(kPackedImei)
                            .Raw("0A 00 00 00 00 00 00 10")
                            .Zeros(16)
                            .Get());
  }
};

TEST_F(FixedNvRead, FillsTextsAndLeavesTheFlags) {
  InBothByteOrders([&] {
    std::memset(&info, 0x55, sizeof info);
    EXPECT_EQ(Read(Answered()), Result::Success);
    EXPECT_THAT(LogText(),
                ElementsAre("Read NV", "Clear Port Buffer", ResultLine(Result::Success)));
    EXPECT_STREQ(info.imei1, kImei);
    EXPECT_STREQ(info.imei2, "49015420323751f") << "the high nibble is the later digit";
    EXPECT_STREQ(info.imei3, kImei);
    EXPECT_STREQ(info.imei4, "000000000000001");
    EXPECT_STREQ(info.bluetooth_address, "0011223344AA");
    EXPECT_STREQ(info.second_address, "0A0B0C0D0E0F");
    EXPECT_EQ(ToHex(std::span(info.parameter_block).subspan(23, 6)), "01 04 03 02 01 02");
    EXPECT_EQ(info.write_imei1, 0x55555555u);
    EXPECT_EQ(info.write_second_address, 0x55555555u);
  });
}

TEST_F(FixedNvRead, OfADamagedOrEmptyBlockLeavesTheRecordAndTheLog) {
  InBothByteOrders([&] {
    GuardedBuffer<QV_FIXED_NV_INFO> untouched;
    const auto read = [&](const Bytes& answer) {
      handset.Expect(94, 0xFF, "00 00").Answer(94, 1, answer);
      const Result result = FastReadNvInfo(phone, untouched.Data());
      EXPECT_TRUE(untouched.Untouched());
      return result;
    };
    const Bytes whole = Answered();
    settings.usefulLog = false;
    for (std::size_t length = 0; length < whole.size(); ++length) {
      const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
      EXPECT_EQ(read(cut), length < 3 ? Result::NoData : Result::ChecksumMismatch) << length;
    }
    settings.usefulLog = true;
    static_cast<void>(Log());
    EXPECT_EQ(read({}), Result::NoData);
    EXPECT_THAT(LogText(), ElementsAre("Read NV", "Clear Port Buffer"));
    Bytes damaged = whole;
    damaged[90] ^= 0x80;
    EXPECT_EQ(read(damaged), Result::ChecksumMismatch);
    EXPECT_THAT(LogText(), ElementsAre("Read NV", "Clear Port Buffer"));
    damaged = whole;
    std::swap(damaged[106], damaged[107]);
    EXPECT_EQ(read(damaged), Result::ChecksumMismatch) << "a checksum in the other byte order";
  });
}

TEST_F(FixedNvRead, OfALongBlockGivesFiveAndItsFields) {
  Bytes block = Answered();
  block.resize(108);
  EXPECT_EQ(Read(WithChecksum(block)), Result::Success);
  block.resize(109);
  EXPECT_EQ(Read(WithChecksum(block)), Result::BufferTooSmall);
  EXPECT_STREQ(info.imei1, kImei);
}

TEST_F(FixedNvRead, OfAShortBlockReadsZerosBehindIt) {
  EXPECT_EQ(Read(WithChecksum(Hex("4A 09"))), Result::Success);
  EXPECT_STREQ(info.bluetooth_address, "000000000000");
  EXPECT_EQ(std::string(info.imei1, 3), "490");
}

TEST_F(FixedNvRead, ThatFailsReadsAsAnEmptyBlock) {
  std::memset(&info, 0x55, sizeof info);
  handset.Expect(94, 0xFF, "00 00").Silent();
  const std::uint32_t before = clock.NowMs();
  EXPECT_EQ(FastReadNvInfo(phone, &info), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs() - before, 3000u);
  EXPECT_STREQ(info.imei4, "000000000000000");
  EXPECT_STREQ(info.second_address, "000000000000");
  EXPECT_EQ(info.parameter_block[43], 0);
  EXPECT_EQ(info.write_imei4, 0x55555555u);
}

}  // namespace
}  // namespace merovane::test
