#include "declared/identity.h"
#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using namespace commands;
using ::testing::ElementsAre;

constexpr std::size_t kItemBytes = 1752;
constexpr const char* kItemMagic = "35 30 56 51";
constexpr const char* kBlockMagic = "39 30 56 51";

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
  using ReadFunction = Result(Phone&, std::uint8_t*, std::uint32_t);
  using WriteFunction = Result(Phone&, const std::uint8_t*, std::uint32_t);

  Exchange& ExpectRead(unsigned bytes) {
    return handset.Expect(13, 2, handset.Message().U16(0).U16(bytes));
  }
  Bytes ItemAnswer(const Bytes& stored, unsigned bytes) {
    const Bytes begin(stored.begin(), stored.begin() + bytes);
    return handset.Message().U16(0).U16(bytes).Raw(begin).Get();
  }
  // Its magic, and as much of the item as is asked for then.
  void GiveItem(const Bytes& stored, unsigned bytes) {
    for (const unsigned asked : {4U, bytes}) {
      ExpectRead(asked).Answer(13, 0, ItemAnswer(stored, asked));
    }
  }
  // Flash item 0 of a handset that keeps its numbers in the block holds the magic and nothing else.
  Exchange& ExpectBlockRead() {
    ExpectRead(4).Answer(13, 0, ItemAnswer(Hex(kBlockMagic), 4));
    return handset.Expect(95, 0x81, "00 00");
  }
  void GiveBlock(const Bytes& stored) { ExpectBlockRead().Answer(95, 1, Checked(stored)); }
  Exchange& ExpectItem(const Bytes& stored) {
    return handset.Expect(13, 3, handset.Message().U16(0).U16(kItemBytes).Raw(stored));
  }
  void TakeItem(const Bytes& stored) { ExpectItem(stored).Answer(13, 0); }
  void TakeBlock(const Bytes& stored) { handset.Expect(95, 1, Checked(stored)).Answer(95, 1); }
  void ReadsField(ReadFunction& read, const Bytes& storage, std::size_t offset) {
    EXPECT_EQ(read(phone, out.Data(), 24), Result::Success);
    EXPECT_EQ(out.Hex(24), ToHex(std::span(storage).subspan(offset, 24)));
  }
  Result Write(WriteFunction& write, const Bytes& text) {
    return write(phone, text.data(), static_cast<std::uint32_t>(text.size()));
  }
  Result Write() { return Write(WriteSN, number); }

  const Bytes number = handset::ToBytes("SN-0123456789-ABCDEFGHI");  // 23 bytes
  const Bytes shortNumber = handset::ToBytes("S1");
  const Bytes item = Storage(kItemBytes, Hex(kItemMagic));
  const Bytes block = Storage(256, Hex(kBlockMagic));
  const Bytes blank = Bytes(kItemBytes);
  GuardedBuffer<std::uint8_t> out{24};
};

TEST_F(SerialNumber, IsReadFromEitherLayout) {
  InBothByteOrders([&] {
    for (const Bytes& storage : {item, blank}) {
      GiveItem(storage, 216);
      ReadsField(ReadSN, storage, 8);
    }
    GiveItem(item, 216);
    ReadsField(ReadSN2, item, 168);
    GiveBlock(block);
    ReadsField(ReadSN, block, 4);
    GiveBlock(block);
    ReadsField(ReadSN2, block, 28);
  });
}

TEST_F(SerialNumber, IsCutToTheCapacity) {
  GuardedBuffer<std::uint8_t> small(10);
  GiveItem(item, 216);
  EXPECT_EQ(ReadSN(phone, small.Data(), 10), Result::BufferTooSmall);
  EXPECT_EQ(small.Hex(10), ToHex(std::span(item).subspan(8, 10)));
  GiveBlock(Bytes(257));
  EXPECT_EQ(ReadSN(phone, out.Data(), 24), Result::BufferTooSmall) << "the block itself";
  EXPECT_TRUE(out.Untouched());
}

TEST_F(SerialNumber, LogsItsStepsAndNoResultOfItsOwn) {
  GiveItem(item, 216);
  EXPECT_EQ(ReadSN2(phone, out.Data(), 24), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 23u) << "that of the last step";
  const std::string done = ResultLine(Result::Success);
  ExpectLogged({"ReadSN2:", "ReadFlash:", done, "ReadFlash:"});
  GiveBlock(block);
  TakeBlock(With(block, 4, shortNumber));
  EXPECT_EQ(Write(WriteSN, shortNumber), Result::Success);
  ExpectLogged(
      {"WriteSN:", "ReadFlash:", done, "Read Product Info", done, "Fast Write Production Info:"});
}

TEST_F(SerialNumber, IsWrittenWithAllElseAsItWasRead) {
  InBothByteOrders([&] {
    GiveItem(item, kItemBytes);
    TakeItem(With(item, 8, number));
    EXPECT_EQ(Write(), Result::Success);
    GiveItem(item, kItemBytes);
    TakeItem(With(item, 168, shortNumber));
    EXPECT_EQ(Write(WriteSN2, shortNumber), Result::Success);
    GiveBlock(block);
    TakeBlock(With(block, 28, number));
    EXPECT_EQ(Write(WriteSN2, number), Result::Success);
    // A block of another magic, shorter than it could be, is whole all the same.
    GiveBlock(Bytes(40, 0x77));
    Bytes grown = With(Bytes(40, 0x77), 4, number);
    grown.resize(256);
    std::copy_n(Hex(kBlockMagic).begin(), 4, grown.begin());
    TakeBlock(grown);
    EXPECT_EQ(Write(), Result::Success);
  });
}

TEST_F(SerialNumber, OfABlankHandsetMakesTheLayoutOfTheSetting) {
  const auto giveMagic = [&] { ExpectRead(4).Answer(13, 0, ItemAnswer(blank, 4)); };
  giveMagic();
  TakeItem(With(With(blank, 0, Hex(kItemMagic)), 8, number));
  EXPECT_EQ(Write(), Result::Success);

  const auto layoutFor = [&](std::string_view value) {
    directory.Write("Merovane.ini",
                    "[writesn_default_magic]\r\nMAGIC_NUMBER = " + std::string(value) + "\r\n");
    return Phone(environment, clock, ScriptedHandset::Library()).newSerialNumberLayout;
  };
  EXPECT_EQ(layoutFor("qv09"), SerialNumberLayout::ProductionBlock);
  EXPECT_EQ(layoutFor("QV091"), SerialNumberLayout::FlashItem);

  phone.newSerialNumberLayout = SerialNumberLayout::ProductionBlock;
  giveMagic();
  TakeBlock(With(With(Bytes(256), 0, Hex(kBlockMagic)), 4, number));
  EXPECT_EQ(Write(), Result::Success);
  // The handset's own layout comes before the setting.
  GiveItem(item, kItemBytes);
  TakeItem(With(item, 8, number));
  EXPECT_EQ(Write(), Result::Success);
}

// Every step in turn fails or comes short: no write must follow, as it would lose what the handset
// holds. A request that is not expected fails the test.
TEST_F(SerialNumber, IsNotWrittenAfterAReadThatFailedOrCameShort) {
  const auto expectWholeRead = [&]() -> Exchange& {
    ExpectRead(4).Answer(13, 0, ItemAnswer(item, 4));
    return ExpectRead(kItemBytes);
  };
  ExpectRead(4).Silent();
  EXPECT_EQ(Write(), Result::NoAnswer);
  for (unsigned bytes = 0; bytes < 4; ++bytes) {
    ExpectRead(4).Answer(13, 0, ItemAnswer(item, bytes));
    EXPECT_EQ(Write(), Result::WrongDataLength);
  }
  expectWholeRead().Refuse();
  EXPECT_EQ(Write(), Result::Refused);
  settings.usefulLog = false;
  for (unsigned bytes = 0; bytes < kItemBytes; bytes += 13) {
    expectWholeRead().Answer(13, 0, ItemAnswer(item, bytes));
    EXPECT_EQ(Write(), Result::WrongDataLength);
  }
  expectWholeRead().Answer(13, 0, Joined(ItemAnswer(item, kItemBytes), Hex("00")));
  EXPECT_EQ(Write(), Result::BufferTooSmall);

  Bytes cut = Checked(block);
  cut.pop_back();
  ExpectBlockRead().Answer(95, 1, cut);
  EXPECT_EQ(Write(), Result::ChecksumMismatch);
  GiveBlock(Bytes(257));
  EXPECT_EQ(Write(), Result::BufferTooSmall);
  ExpectBlockRead().Silent();
  EXPECT_EQ(Write(), Result::NoAnswer);
}

TEST_F(SerialNumber, WaitsAsLongAsEachStepIsGiven) {
  const auto read = [&] { return ReadSN(phone, out.Data(), 24); };
  const auto write = [&] { return Write(); };
  ExpectRead(4).Silent();
  ExpectTakes(4000, Result::NoAnswer, read);
  ExpectRead(4).Answer(13, 0, ItemAnswer(item, 4));
  ExpectRead(216).Silent();
  ExpectTakes(4000, Result::NoAnswer, read);
  ExpectRead(4).Answer(13, 0, ItemAnswer(item, 4));
  ExpectRead(kItemBytes).Silent();
  ExpectTakes(8000, Result::NoAnswer, write);
  GiveItem(item, kItemBytes);
  ExpectItem(With(item, 8, number)).Silent();
  ExpectTakes(3000, Result::NoAnswer, write);
  ExpectRead(kItemBytes).Silent();
  ExpectTakes(4000, Result::NoAnswer, [&] { return ReadGuid(phone, out.Data()); });
  EXPECT_TRUE(out.Untouched());
}

TEST_F(SerialNumber, StandsBesideTheGuid) {
  ExpectRead(kItemBytes).Answer(13, 0, ItemAnswer(item, kItemBytes));
  EXPECT_EQ(ReadGuid(phone, out.Data()), Result::Success);
  EXPECT_EQ(out.Hex(16), ToHex(std::span(item).subspan(152, 16)));
  EXPECT_TRUE(out.UntouchedFrom(16));
  EXPECT_EQ(LogText().front(), "ReadGuid:");
  ExpectRead(kItemBytes).Answer(13, 0, ItemAnswer(item, 154));
  EXPECT_EQ(ReadGuid(phone, out.Data()), Result::Success);
  EXPECT_EQ(out.Hex(16), ToHex(Joined({item[152], item[153]}, Bytes(14))));
}

}  // namespace
}  // namespace merovane::test
