#include "commands/test/serial_number.h"

#include "commands/crc16.h"
#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using namespace commands;
using ::testing::ElementsAre;

constexpr std::size_t kItemBytes = 1752;
constexpr const char* kItemMagic = "35 30 56 51";
constexpr const char* kBlockMagic = "39 30 56 51";

Bytes Text(std::string_view text) { return Bytes(text.begin(), text.end()); }

// Storage in which every byte tells its place.
Bytes Storage(std::size_t bytes, const Bytes& magic) {
  Bytes storage(bytes);
  for (std::size_t at = 0; at < bytes; ++at) storage[at] = static_cast<std::uint8_t>(at * 7 + 1);
  std::copy(magic.begin(), magic.end(), storage.begin());
  return storage;
}

Bytes With(Bytes storage, std::size_t offset, const Bytes& number) {
  const auto field = storage.begin() + static_cast<std::ptrdiff_t>(offset);
  std::fill_n(field, 24, std::uint8_t{0});
  std::copy(number.begin(), number.end(), field);
  return storage;
}

struct SerialNumber : CommandFixture {
  Exchange& ExpectRead(unsigned bytes) {
    return handset.Expect(13, 2, handset.Message().U16(0).U16(bytes));
  }
  Bytes ItemAnswer(const Bytes& stored, unsigned bytes) {
    return handset.Message()
        .U16(0)
        .U16(bytes)
        .Raw(Bytes(stored.begin(), stored.begin() + bytes))
        .Get();
  }
  void GiveItem(const Bytes& stored, unsigned bytes) {
    ExpectRead(bytes).Answer(13, 0, ItemAnswer(stored, bytes));
  }
  void GiveBlock(const Bytes& stored) {
    handset.Expect(95, 0x81, "00 00").Answer(95, 1, WithChecksum(stored));
  }
  Exchange& ExpectItem(const Bytes& stored) {
    return handset.Expect(13, 3, handset.Message().U16(0).U16(kItemBytes).Raw(stored));
  }
  Exchange& ExpectBlock(const Bytes& stored) { return handset.Expect(95, 1, WithChecksum(stored)); }

  const Bytes number = Text("SN-0123456789-ABCDEFGHI");  // 23 bytes
  const Bytes shortNumber = Text("S1");
  const Bytes item = Storage(kItemBytes, Hex(kItemMagic));
  const Bytes block = Storage(256, Hex(kBlockMagic));
  const Bytes blank = Bytes(kItemBytes);
  // Flash item 0 of a handset that keeps its numbers in the block: the magic, nothing else.
  const Bytes pointer = With(blank, 0, Hex(kBlockMagic));
  GuardedBuffer<std::uint8_t> out{24};
};

TEST_F(SerialNumber, IsReadFromEitherLayout) {
  InBothByteOrders([&] {
    for (const Bytes& storage : {item, blank}) {
      GiveItem(storage, 4);
      GiveItem(storage, 216);
      EXPECT_EQ(ReadSN(phone, out.Data(), 24), Result::Success);
      EXPECT_EQ(out.Hex(24), ToHex(std::span(storage).subspan(8, 24)));
    }
    GiveItem(item, 4);
    GiveItem(item, 216);
    EXPECT_EQ(ReadSN2(phone, out.Data(), 24), Result::Success);
    EXPECT_EQ(out.Hex(24), ToHex(std::span(item).subspan(168, 24)));
    GiveItem(pointer, 4);
    GiveBlock(block);
    EXPECT_EQ(ReadSN(phone, out.Data(), 24), Result::Success);
    EXPECT_EQ(out.Hex(24), ToHex(std::span(block).subspan(4, 24)));
    GiveItem(pointer, 4);
    GiveBlock(block);
    EXPECT_EQ(ReadSN2(phone, out.Data(), 24), Result::Success);
    EXPECT_EQ(out.Hex(24), ToHex(std::span(block).subspan(28, 24)));
  });
}

TEST_F(SerialNumber, IsCutToTheCapacity) {
  GuardedBuffer<std::uint8_t> small(10);
  GiveItem(item, 4);
  GiveItem(item, 216);
  EXPECT_EQ(ReadSN(phone, small.Data(), 10), Result::BufferTooSmall);
  EXPECT_EQ(small.Hex(10), ToHex(std::span(item).subspan(8, 10)));
  GiveItem(pointer, 4);
  GiveBlock(Bytes(257));
  EXPECT_EQ(ReadSN(phone, out.Data(), 24), Result::BufferTooSmall) << "the block itself";
  EXPECT_TRUE(out.Untouched());
}

TEST_F(SerialNumber, LogsItsStepsAndNoResultOfItsOwn) {
  GiveItem(item, 4);
  GiveItem(item, 216);
  const Result result = ReadSN2(phone, out.Data(), 24);
  EXPECT_EQ(OperationOf(result), 23u) << "that of the last step";
  const std::string done = ResultLine(Result::Success);
  EXPECT_THAT(LogText(), ElementsAre("ReadSN2:", "ReadFlash:", "Clear Port Buffer", done,
                                     "ReadFlash:", "Clear Port Buffer", done));
  GiveItem(pointer, 4);
  GiveBlock(block);
  ExpectBlock(With(block, 4, shortNumber)).Answer(95, 1);
  EXPECT_EQ(WriteSN(phone, shortNumber.data(), 2), Result::Success);
  EXPECT_THAT(LogText(), ElementsAre("WriteSN:", "ReadFlash:", "Clear Port Buffer", done,
                                     "Read Product Info", "Clear Port Buffer", done,
                                     "Fast Write Production Info:", "Clear Port Buffer", done));
}

TEST_F(SerialNumber, IsWrittenWithAllElseAsItWasRead) {
  InBothByteOrders([&] {
    GiveItem(item, 4);
    GiveItem(item, kItemBytes);
    ExpectItem(With(item, 8, number)).Answer(13, 0);
    EXPECT_EQ(WriteSN(phone, number.data(), 23), Result::Success);
    GiveItem(item, 4);
    GiveItem(item, kItemBytes);
    ExpectItem(With(item, 168, shortNumber)).Answer(13, 0);
    EXPECT_EQ(WriteSN2(phone, shortNumber.data(), 2), Result::Success);
    GiveItem(pointer, 4);
    GiveBlock(block);
    ExpectBlock(With(block, 28, number)).Answer(95, 1);
    EXPECT_EQ(WriteSN2(phone, number.data(), 23), Result::Success);
    // A block of another magic, shorter than it could be, is whole all the same.
    GiveItem(pointer, 4);
    GiveBlock(Bytes(40, 0x77));
    Bytes grown = With(Bytes(40, 0x77), 4, number);
    grown.resize(256);
    std::copy_n(Hex(kBlockMagic).begin(), 4, grown.begin());
    ExpectBlock(grown).Answer(95, 1);
    EXPECT_EQ(WriteSN(phone, number.data(), 23), Result::Success);
  });
}

TEST_F(SerialNumber, OfABlankHandsetMakesTheLayoutOfTheSetting) {
  GiveItem(blank, 4);
  ExpectItem(With(With(blank, 0, Hex(kItemMagic)), 8, number)).Answer(13, 0);
  EXPECT_EQ(WriteSN(phone, number.data(), 23), Result::Success);

  const auto layoutFor = [&](std::string_view value) {
    directory.Write("Merovane.ini",
                    "[writesn_default_magic]\r\nMAGIC_NUMBER = " + std::string(value) + "\r\n");
    LinkSettings other(directory.Path());
    return Phone(other, clock, ScriptedHandset::Library()).newSerialNumberLayout;
  };
  EXPECT_EQ(layoutFor("qv09"), SerialNumberLayout::ProductionBlock);
  EXPECT_EQ(layoutFor("QV091"), SerialNumberLayout::FlashItem);
  EXPECT_EQ(layoutFor("nonsense"), SerialNumberLayout::FlashItem);
  SetByteOrder(true);

  phone.newSerialNumberLayout = SerialNumberLayout::ProductionBlock;
  GiveItem(blank, 4);
  ExpectBlock(With(With(Bytes(256), 0, Hex(kBlockMagic)), 4, number)).Answer(95, 1);
  EXPECT_EQ(WriteSN(phone, number.data(), 23), Result::Success);
  // The handset's own layout comes before the setting.
  GiveItem(item, 4);
  GiveItem(item, kItemBytes);
  ExpectItem(With(item, 8, number)).Answer(13, 0);
  EXPECT_EQ(WriteSN(phone, number.data(), 23), Result::Success);
}

// Every step in turn fails or comes short: no write must follow, as it would lose what the handset
// holds. A request that is not expected fails the test.
TEST_F(SerialNumber, IsNotWrittenAfterAReadThatFailedOrCameShort) {
  const auto write = [&] { return WriteSN(phone, number.data(), 23); };
  ExpectRead(4).Silent();
  EXPECT_EQ(write(), Result::NoAnswer);
  for (unsigned bytes = 0; bytes < 4; ++bytes) {
    ExpectRead(4).Answer(13, 0, ItemAnswer(item, bytes));
    EXPECT_EQ(write(), Result::WrongDataLength);
  }
  GiveItem(item, 4);
  ExpectRead(kItemBytes).Refuse();
  EXPECT_EQ(write(), Result::Refused);
  settings.usefulLog = false;
  for (unsigned bytes = 0; bytes < kItemBytes; bytes += 13) {
    GiveItem(item, 4);
    ExpectRead(kItemBytes).Answer(13, 0, ItemAnswer(item, bytes));
    EXPECT_EQ(write(), Result::WrongDataLength);
  }
  GiveItem(item, 4);
  ExpectRead(kItemBytes).Answer(13, 0, Joined(ItemAnswer(item, kItemBytes), Hex("00")));
  EXPECT_EQ(write(), Result::BufferTooSmall);

  GiveItem(pointer, 4);
  Bytes cut = WithChecksum(block);
  cut.pop_back();
  handset.Expect(95, 0x81, "00 00").Answer(95, 1, cut);
  EXPECT_EQ(write(), Result::ChecksumMismatch);
  GiveItem(pointer, 4);
  GiveBlock(Bytes(257));
  EXPECT_EQ(write(), Result::BufferTooSmall);
  GiveItem(pointer, 4);
  handset.Expect(95, 0x81, "00 00").Silent();
  EXPECT_EQ(write(), Result::NoAnswer);
}

TEST_F(SerialNumber, PassesTheWritesCodeOn) {
  GiveItem(item, 4);
  GiveItem(item, kItemBytes);
  ExpectItem(With(item, 8, number)).Silent();
  const std::uint32_t before = clock.NowMs();
  EXPECT_EQ(WriteSN(phone, number.data(), 23), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs() - before, 3000u);
}

TEST_F(SerialNumber, ReadsWaitAsLongAsEachIsGiven) {
  GiveItem(item, 4);
  ExpectRead(kItemBytes).Silent();
  const std::uint32_t before = clock.NowMs();
  EXPECT_EQ(WriteSN(phone, number.data(), 23), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs() - before, 8000u);
  ExpectRead(4).Silent();
  EXPECT_EQ(ReadSN(phone, out.Data(), 24), Result::NoAnswer);
  ExpectRead(kItemBytes).Silent();
  EXPECT_EQ(ReadGuid(phone, out.Data()), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs() - before, 16000u);
  EXPECT_TRUE(out.Untouched());
}

TEST_F(SerialNumber, StandsBesideTheGuid) {
  GiveItem(item, kItemBytes);
  EXPECT_EQ(ReadGuid(phone, out.Data()), Result::Success);
  EXPECT_EQ(out.Hex(16), ToHex(std::span(item).subspan(152, 16)));
  EXPECT_TRUE(out.UntouchedFrom(16));
  EXPECT_EQ(LogText().front(), "ReadGuid:");
  ExpectRead(kItemBytes).Answer(13, 0, ItemAnswer(item, 154));
  EXPECT_EQ(ReadGuid(phone, out.Data()), Result::Success);
  EXPECT_EQ(out.Hex(16), ToHex(std::span(item).subspan(152, 2)) +
                             " 00 00 00 00 00 00 00 00 00 00"
                             " 00 00 00 00");
}

}  // namespace
}  // namespace merovane::test
