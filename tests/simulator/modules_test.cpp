#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "handset/handset.h"
#include "modules/memory/crc16.h"
#include "simulator/station.h"

namespace {

using handset::ByteOrder;
using handset::Bytes;
using handset::FromHex;
using handset::Handset;
using handset::HandsetOptions;
using handset::HandsetState;
using handset::Power;
using handset::SerialLayout;
using handset::ToHex;
using station::kPatience;
using station::Station;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

HandsetOptions Running(ByteOrder order = ByteOrder::Big) {
  HandsetOptions options;
  options.startMode = 1;
  options.byteOrder = order;
  return options;
}

// A handset and a station, talking in transcripts: "13/0 00 05".
struct Talk {
  explicit Talk(HandsetOptions options = Running())
      : phone(options),
        line((phone.Start(), phone.Address()), options.byteOrder == ByteOrder::Big) {}

  std::string Ask(uint8_t type, uint8_t subtype, const std::string& hex = "") {
    auto answer = line.Ask(type, subtype, FromHex(hex));
    if (!answer) return "nothing";
    std::string text = std::to_string(answer->type) + "/" + std::to_string(answer->subtype);
    return answer->payload.empty() ? text : text + " " + ToHex(answer->payload);
  }

  // Commands without an answer are over when the next one is answered.
  void Tell(uint8_t type, uint8_t subtype, const std::string& hex = "") {
    line.Send(type, subtype, FromHex(hex));
    EXPECT_TRUE(line.Ask(28, 0));
  }

  void Restart() {
    unsigned boots = static_cast<unsigned>(std::stoul(phone.Status("session.boots")));
    phone.Restart();
    EXPECT_TRUE(phone.WaitForState(
        [](const HandsetState& state) { return state.power == Power::Running; }, kPatience));
    EXPECT_EQ(phone.Status("session.boots"), std::to_string(boots + 1));
  }

  Handset phone;
  Station line;
};

std::string Zeros(size_t count) { return ToHex(Bytes(count)); }

TEST(Crc16, GivesThePublishedCheckValue) {
  Bytes digits = handset::ToBytes("123456789");
  EXPECT_EQ(handset::Crc16(digits), 0xBB3D);
  EXPECT_EQ(handset::Crc16({}), 0);
}

TEST(Items, FlashKeepsWhatWasWrittenAndReadsZerosElsewhere) {
  Talk talk;
  EXPECT_EQ(talk.Ask(13, 2, "00 07 00 03"), "13/0 00 07 00 03 00 00 00");
  EXPECT_EQ(talk.Ask(13, 3, "00 07 00 04 01 02 7d 7e"), "13/0 00 07 00 04");
  EXPECT_EQ(talk.Ask(13, 3, "00 07 00 01 0a"), "13/0 00 07 00 01");
  EXPECT_EQ(talk.Ask(13, 2, "00 07 00 06"), "13/0 00 07 00 06 0a 02 7d 7e 00 00");
  talk.Restart();
  EXPECT_EQ(talk.Ask(13, 2, "00 07 00 02"), "13/0 00 07 00 02 0a 02");
  EXPECT_EQ(talk.Ask(13, 4), "13/0");
  EXPECT_EQ(talk.Ask(13, 2, "00 07 00 02"), "13/0 00 07 00 02 00 00");

  EXPECT_EQ(talk.Ask(13, 3, "00 07 00 04 01"), "13/2") << "length and data disagree";
  EXPECT_EQ(talk.Ask(13, 2, "00 07 00"), "13/2");
  EXPECT_EQ(talk.Ask(13, 2, "00 07 ff ff"), "13/2");
}

TEST(Items, NvItemsHaveTheLengthThatWasWritten) {
  Talk talk(Running(ByteOrder::Little));
  EXPECT_EQ(talk.Ask(13, 0, "2c 01"), "13/0 2c 01");
  EXPECT_EQ(talk.Ask(13, 1, "2c 01 aa bb cc"), "13/0 2c 01");
  EXPECT_EQ(talk.Ask(13, 0, "2c 01"), "13/0 2c 01 aa bb cc");
  EXPECT_EQ(talk.Ask(13, 0, "05 00"), "13/0 05 00 4a 09 51 24 30 32 57 81");
  EXPECT_EQ(talk.Ask(13, 1, "05 00 4a 09"), "13/2") << "no IMEI is that short";
  EXPECT_EQ(talk.Ask(13, 7, "00 00"), "13/0 00 00");
}

TEST(FixedNv, WritesTheFieldsOfItsMaskAndReadsThemAllWithAChecksum) {
  HandsetOptions options = Running();
  options.blank = true;
  Talk talk(options);
  EXPECT_EQ(talk.Ask(94, 0xFF, "00 00"), "94/1 " + Zeros(108));

  // The third IMEI alone, in a block that holds others too.
  std::string block = "11 " + Zeros(73) + " 4a 09 51 24 30 32 57 81 " + Zeros(24);
  std::string kept = Zeros(74) + " 4a 09 51 24 30 32 57 81 " + Zeros(24);
  Bytes checked = FromHex(block);
  handset::Append16(checked, handset::Crc16(checked), ByteOrder::Big);
  EXPECT_EQ(talk.Ask(94, 0x10, ToHex(checked)), "94/1 00 00");
  std::string answer = talk.Ask(94, 0xFF, "00 00");
  EXPECT_EQ(answer, "94/1 " + kept + " 4b 06");
  EXPECT_EQ(talk.phone.Status("fixed_nv.imei3"), "490154203237518");

  checked.back() ^= 1;
  EXPECT_EQ(talk.Ask(94, 0x10, ToHex(checked)), "94/2") << "a damaged block is not written";
  EXPECT_EQ(talk.Ask(94, 0x01, block + " 00 00"), "94/1 00 00") << "written directly";
  EXPECT_THAT(talk.Ask(94, 0xFF, "00 00"), StartsWith("94/1 11 00"));
  EXPECT_EQ(talk.Ask(94, 0x01, block), "94/2");
  EXPECT_EQ(talk.Ask(94, 0xC0, "00 00"), "94/1 00 00");
  EXPECT_EQ(talk.Ask(97, 0x80, "00 00").substr(0, 29), "97/1 02 00 00 00 00 00 00 00 ");
}

TEST(Registers, AreMemoryUntilTheHandsetRestarts) {
  Talk talk;
  // Two 16-bit units at 0x20000010: bytes stay as they were given.
  EXPECT_EQ(talk.Ask(11, 0, "a0 04 00 14 00 00 00 01 20 00 00 10 00 00 00 02 01 02 03 04"),
            "11/0 a0 04 00 10 00 00 00 01 20 00 00 10 00 00 00 02");
  EXPECT_EQ(talk.Ask(11, 0, "a0 03 00 10 00 00 00 00 20 00 00 11 00 00 00 03"),
            "11/0 a0 03 00 13 00 00 00 00 20 00 00 11 00 00 00 03 02 03 04");
  talk.Restart();
  EXPECT_THAT(talk.Ask(11, 0, "a0 03 00 10 00 00 00 02 20 00 00 10 00 00 00 01"),
              EndsWith("00 00 00 01 00 00 00 00"));
  for (const char* wrong : {
           "a0 03 00 10 00 00 00 02 20 00 00 11 00 00 00 01",        // not aligned
           "a0 03 00 10 00 00 00 00 20 00 ff ff 00 00 00 02",        // past the region
           "a0 03 00 10 00 00 00 00 ff ff ff ff 00 00 00 02",        // past all memory
           "a0 03 00 10 00 00 00 02 20 00 00 00 40 00 00 01",        // count overflows
           "a0 03 00 10 00 00 00 00 20 00 00 00 00 00 00 00",        // nothing
           "a0 03 00 11 00 00 00 00 20 00 00 00 00 00 00 01",        // wrong total
           "a0 04 00 12 00 00 00 00 20 00 00 00 00 00 00 01 aa bb",  // too much data
           "a0 04 00 11 00 00 00 00 00 00 00 00 00 00 00 01 aa",     // read-only
           "a0 05 00 10 00 00 00 00 20 00 00 00 00 00 00 01",        // no operation
           "a0 03 00 10 00 00",
       }) {
    EXPECT_EQ(talk.Ask(11, 0, wrong), "11/2") << wrong;
  }
}

TEST(Identification, FollowsTheHandsetsOrder) {
  Talk big;
  Talk little(Running(ByteOrder::Little));
  EXPECT_EQ(big.Ask(93, 0), "93/0 51 a0 03 07");
  EXPECT_EQ(little.Ask(93, 0), "93/0 07 03 a0 51");
  EXPECT_THAT(big.Ask(93, 2), StartsWith("93/2 4c 43 44 01"));
  EXPECT_THAT(big.Ask(93, 3), StartsWith("93/3 4c 43 44 02"));
  std::string description = big.Ask(93, 4);
  EXPECT_EQ(description.size(), 4u + 384 * 3);
  EXPECT_THAT(description, HasSubstr("00 00 00 02 00 00 00 00 00 02 00 00"));
  EXPECT_EQ(big.Ask(37, 9, "00 ff " + Zeros(18)),
            "37/9 01 00 00 01 00 01 00 01 00 01 00 01 00 01 00 01 00 01 00 01");
  EXPECT_EQ(big.Ask(37, 9, "00 ff"), "37/2");
}

TEST(Identity, SerialNumbersStandInEitherLayout) {
  Talk flash;
  EXPECT_EQ(flash.Ask(13, 2, "00 00 00 04"), "13/0 00 00 00 04 35 30 56 51");
  EXPECT_EQ(flash.phone.Status("identity.layout"), "flash");
  EXPECT_EQ(flash.phone.Status("identity.sn"), "SIM0000000001");

  HandsetOptions options = Running();
  options.serialLayout = SerialLayout::Production;
  Talk production(options);
  EXPECT_EQ(production.Ask(13, 2, "00 00 00 04"), "13/0 00 00 00 04 39 30 56 51");
  std::string block = production.Ask(95, 0x81, "00 00");
  EXPECT_EQ(block.size(), 4u + 258 * 3);
  EXPECT_THAT(block, StartsWith("95/1 39 30 56 51 53 49 4d"));
  EXPECT_EQ(production.phone.Status("identity.sn2"), "SIM0000000002");
}

TEST(Identity, ABlankHandsetTakesTheLayoutThatIsWritten) {
  HandsetOptions options = Running();
  options.blank = true;
  Talk talk(options);
  EXPECT_EQ(talk.Ask(13, 2, "00 00 00 04"), "13/0 00 00 00 04 00 00 00 00");
  EXPECT_EQ(talk.phone.Status("identity.layout"), "none");
  EXPECT_EQ(talk.Ask(95, 0x81, "00 00"), "95/1 " + Zeros(258));

  Bytes block(256);
  std::copy_n("90VQserial", 10, block.begin());
  handset::Append16(block, handset::Crc16(block), ByteOrder::Big);
  EXPECT_EQ(talk.Ask(95, 1, ToHex(block)), "95/1 00 00");
  EXPECT_EQ(talk.Ask(95, 0x81, "00 00"), "95/1 " + ToHex(block));
  EXPECT_EQ(talk.Ask(13, 2, "00 00 00 04"), "13/0 00 00 00 04 39 30 56 51")
      << "a station that looks at item 0 finds the layout";
  EXPECT_EQ(talk.phone.Status("identity.sn"), "serial");
  block[9] ^= 1;
  EXPECT_EQ(talk.Ask(95, 1, ToHex(block)), "95/2");
  EXPECT_EQ(talk.Ask(95, 1), "95/2");
}

TEST(Identity, TheVersionBlockCarriesItsChecksumInTheHandsetsOrder) {
  for (ByteOrder order : {ByteOrder::Big, ByteOrder::Little}) {
    Talk talk(Running(order));
    auto answer = talk.line.Ask(96, 0x81, {0, 0});
    ASSERT_TRUE(answer && answer->payload.size() > 2);
    size_t size = answer->payload.size() - 2;
    uint16_t crc = handset::Crc16(std::span(answer->payload).first(size));
    EXPECT_EQ(answer->payload[size], order == ByteOrder::Big ? crc >> 8 : crc & 0xFF);
    EXPECT_EQ(answer->payload[size + 1], order == ByteOrder::Big ? crc & 0xFF : crc >> 8);
  }
}

TEST(Peripherals, SwitchesShowWhatTheyShare) {
  Talk talk;
  auto shown = [&](const char* name) {
    return talk.phone.Status("peripherals." + std::string(name));
  };
  talk.Tell(17, 4);
  talk.Tell(17, 3);
  EXPECT_EQ(shown("led") + shown("lcd") + shown("vibrator"), "ononon");
  talk.Tell(17, 0);
  EXPECT_EQ(shown("led") + shown("lcd") + shown("vibrator"), "offonoff");
  talk.Tell(17, 8);
  talk.Tell(17, 16);
  talk.Tell(17, 18);
  EXPECT_EQ(shown("lcd") + shown("key_light") + shown("camera"), "offonon");
  talk.Restart();
  EXPECT_EQ(shown("key_light") + shown("camera"), "offoff");
}

TEST(Peripherals, MeasuredValuesMoveAndTheSeedRepeatsThem) {
  auto readings = [](uint64_t seed) {
    HandsetOptions options = Running();
    options.seed = seed;
    Talk talk(options);
    std::string all;
    for (int i = 0; i < 20; ++i) all += talk.Ask(15, 2) + "|" + talk.Ask(30, 0) + "|";
    return all;
  };
  std::string first = readings(3);
  EXPECT_EQ(first, readings(3));
  EXPECT_NE(first, readings(4));
  EXPECT_NE(first.substr(0, 30), first.substr(first.size() / 2, 30));

  Talk talk(Running(ByteOrder::Little));
  auto volt = talk.line.Ask(30, 0);
  ASSERT_TRUE(volt && volt->payload.size() == 4);
  EXPECT_NEAR(volt->payload[0] + 256 * volt->payload[1], 4150, 30);
  auto adc = talk.line.Ask(15, 3);
  ASSERT_TRUE(adc && adc->payload.size() == 4);
  EXPECT_EQ(adc->subtype, 0);
  EXPECT_NEAR(adc->payload[0] + 256 * adc->payload[1], 470, 30);
}

TEST(Peripherals, KeysArePressed) {
  Talk talk;
  EXPECT_EQ(talk.Ask(1, 0, "a0 01 00 08 00 00 01 02"), "1/0");
  EXPECT_EQ(talk.phone.Status("measuring.last_key"), "258");
  EXPECT_EQ(talk.Ask(1, 0, "01 a0 08 00 02 01 00 00"), "1/2") << "the other byte order";
}

TEST(Gps, OpensClosesAndKeepsItsBlock) {
  Talk talk;
  EXPECT_THAT(talk.Ask(35, 0, Zeros(264)), "35/0 " + Zeros(264));
  EXPECT_EQ(talk.phone.Status("gps.receiver"), "open");
  std::string block = "aa " + Zeros(42) + " bb";
  std::string written = "00 00 00 04 00 00 00 2c " + block + " " + Zeros(212);
  EXPECT_THAT(talk.Ask(35, 0, written), StartsWith("35/0 00 00 00 04 00 00 00 2c 00"));
  EXPECT_THAT(talk.Ask(35, 0, "00 00 00 03 " + Zeros(260)), StartsWith("35/0 00 00 00 03"));
  talk.Restart();
  EXPECT_EQ(talk.Ask(35, 0, "00 00 00 05 00 00 00 2c " + Zeros(256)),
            "35/0 00 00 00 05 00 00 00 2c " + block + " " + Zeros(212));
  EXPECT_THAT(talk.Ask(35, 0, "00 00 00 09 " + Zeros(260)), StartsWith("35/0 ff ff ff ff"));
  EXPECT_EQ(talk.Ask(35, 0, Zeros(100)), "35/2");
}

TEST(Bluetooth, TestsNeedTheTestMode) {
  Talk talk;
  std::string radio = Zeros(4) + " 00 00 00 4e " + Zeros(8);
  EXPECT_EQ(talk.Ask(33, 4, radio), "33/2");
  EXPECT_EQ(talk.Ask(33, 6, "00 00 00 05"), "33/2");
  EXPECT_EQ(talk.Ask(33, 7, "00 00 00 05"), "33/2");
  EXPECT_EQ(talk.Ask(33, 0), "33/0");
  EXPECT_EQ(talk.Ask(33, 4, radio), "33/0");
  EXPECT_EQ(talk.phone.Status("bluetooth.activity"), "radio test");
  EXPECT_EQ(talk.phone.Status("bluetooth.channel"), "78");
  EXPECT_EQ(talk.Ask(33, 6, "00 00 00 4f"), "33/2") << "no such channel";
  EXPECT_EQ(talk.Ask(33, 5), "33/0");
  EXPECT_EQ(talk.Ask(33, 7, "00 00 00 40"), "33/2") << "no such DAC value";
  EXPECT_EQ(talk.Ask(33, 9, "00 00 00 21"), "33/0");
  EXPECT_EQ(talk.Ask(33, 2, "06 05 04 03 02 01"), "33/0");
  talk.Restart();
  EXPECT_EQ(talk.phone.Status("bluetooth.test_mode"), "off");
  EXPECT_EQ(talk.Ask(33, 10), "33/0 00 00 00 21");
  EXPECT_EQ(talk.Ask(33, 3), "33/0 06 05 04 03 02 01");
  EXPECT_EQ(talk.phone.Status("fixed_nv.bluetooth"), "01 02 03 04 05 06");
}

TEST(Wifi, StatusTellsWhatWasWrong) {
  Talk talk;
  const std::string done = " 00 00 00 00";
  const std::string notTesting = " 00 00 00 01";
  const std::string badValue = " 00 00 00 02";
  EXPECT_EQ(talk.Ask(54, 3, "00 00 00 06"), "54/3" + notTesting);
  EXPECT_EQ(talk.Ask(54, 0, "00 00 00 01"), "54/0" + done);
  EXPECT_EQ(talk.Ask(54, 3, "00 00 00 0d"), "54/3" + done);
  EXPECT_EQ(talk.Ask(54, 3, "00 00 00 0e"), "54/3" + badValue);
  EXPECT_EQ(talk.Ask(54, 4, "00 00 00 36"), "54/4" + done);
  EXPECT_EQ(talk.Ask(54, 4, "00 00 00 03"), "54/4" + badValue);
  EXPECT_EQ(talk.Ask(54, 5, "00 00 00 07"), "54/5" + badValue);
  EXPECT_EQ(talk.Ask(54, 6, "00 00 00 00"), "54/6" + badValue);
  EXPECT_EQ(talk.Ask(54, 1, "06 05 04 03 02 01"), "54/1" + done);
  EXPECT_EQ(talk.Ask(54, 2), "54/2" + done + " 06 05 04 03 02 01") << "kept as it came";
  EXPECT_EQ(talk.Ask(54, 13, "12 34"), "54/13" + done);
  EXPECT_EQ(talk.phone.Status("wifi.crystal"), "12 34");
}

TEST(Wifi, SomeWordsNeverFollowTheHandsetsOrder) {
  Talk talk(Running(ByteOrder::Little));
  EXPECT_EQ(talk.Ask(54, 0, "01 00 00 00"), "54/0 00 00 00 00");
  EXPECT_EQ(talk.Ask(54, 7, "00 00 00 01 00 00 01 02"), "54/7 00 00 00 00");
  EXPECT_EQ(talk.phone.Status("wifi.transmitter"), "on");
  EXPECT_EQ(talk.phone.Status("wifi.transmit_parameter"), "258");
  EXPECT_EQ(talk.Ask(54, 11, "00 00 00 00 00 00 00 05 00 00 01 02"), "54/11 00 00 00 00");
  EXPECT_EQ(talk.Ask(54, 12, "00 00 00 00 00 00 00 01 00 00 00 07"), "54/12 00 00 00 00");
  EXPECT_EQ(talk.Ask(54, 10), "54/10 00 00 00 00 01 00 00 00 07 00 00 00");
  EXPECT_EQ(talk.Ask(54, 11, "00 00 00 00 00 00 00 06 00 00 01 02"), "54/11 02 00 00 00");
  talk.Restart();
  EXPECT_EQ(talk.Ask(54, 10), "54/10 00 00 00 00 05 00 00 00 02 01 00 00") << "only set, not kept";
}

TEST(Wifi, ReceivedPacketsAreCountedWhileTheReceiverIsOn) {
  Talk talk;
  talk.Ask(54, 0, "00 00 00 01");
  EXPECT_EQ(talk.Ask(54, 9), "54/9 " + Zeros(12));
  talk.Ask(54, 8, "00 00 00 01");
  EXPECT_NE(talk.Ask(54, 9), "54/9 " + Zeros(12));
  talk.Ask(54, 8, "00 00 00 00");
  std::string counted = talk.Ask(54, 9);
  EXPECT_NE(counted, "54/9 " + Zeros(12));
  EXPECT_EQ(talk.Ask(54, 9), counted);
  talk.Ask(54, 8, "00 00 00 02");
  EXPECT_EQ(talk.Ask(54, 9), "54/9 " + Zeros(12));
}

TEST(Dsp, DebugsItsOwnMemory) {
  Talk talk;
  EXPECT_EQ(talk.Ask(50, 0), "50/0 00 00 00 00");
  EXPECT_EQ(talk.Ask(50, 2, "00 10 00 04 00 00 00 02 00 00 ab cd 00 00 00 00"), "50/2 00 00 00 00");
  EXPECT_EQ(talk.Ask(50, 1, "00 10 00 04 00 00 00 01 00 03 00 00"), "50/1 00 00 00 00 ab cd 00");
  EXPECT_EQ(talk.Ask(50, 1, "00 10 00 04 00 00 00 03 00 01 00 00"), "50/1 00 00 00 01");
  EXPECT_EQ(talk.Ask(50, 1, "00 10 7f ff 00 00 00 01 00 02 00 00"), "50/1 00 00 00 01");
  EXPECT_EQ(talk.Ask(50, 2, "00 00 00 04 00 00 00 02 00 00 ab cd 00 00 00 00"), "50/2 00 00 00 01");
  EXPECT_EQ(talk.Ask(50, 3, "00 01 00 02 00 00 00 03 04 05 00 00"), "50/3 00 00 00 00");
}

class StateFile : public testing::Test {
 protected:
  StateFile() {
    options.stateFile = testing::TempDir() + "handset-state." + std::to_string(getpid()) + ".json";
    std::filesystem::remove(options.stateFile);
  }
  ~StateFile() override { std::filesystem::remove(options.stateFile); }

  HandsetOptions options = Running();
};

TEST_F(StateFile, FlashOutlivesTheProgram) {
  {
    Talk talk(options);
    talk.Ask(13, 3, "00 07 00 02 01 02");
    talk.Ask(13, 1, "00 64");
    // On disk with the answer, not at the end: a power cut gives no notice.
    HandsetOptions copy = options;
    copy.stateFile += ".copy";
    std::filesystem::copy_file(options.stateFile, copy.stateFile);
    EXPECT_EQ(Talk(copy).Ask(13, 2, "00 07 00 02"), "13/0 00 07 00 02 01 02");
    std::filesystem::remove(copy.stateFile);
  }
  options.serialLayout = SerialLayout::Production;  // Only a new handset takes the layout.
  Talk again(options);
  EXPECT_EQ(again.Ask(13, 2, "00 07 00 02"), "13/0 00 07 00 02 01 02");
  EXPECT_EQ(again.Ask(13, 0, "00 64"), "13/0 00 64") << "emptied, not made anew";
  EXPECT_EQ(again.phone.Status("identity.layout"), "flash");
}

TEST_F(StateFile, ABlankHandsetStaysAsEmptyAsItWasMade) {
  { Talk factory(options); }
  options.blank = true;
  {
    Talk talk(options);
    EXPECT_EQ(talk.phone.Status("fixed_nv.imei1"), "000000000000000");
    talk.Ask(13, 3, "00 07 00 01 05");
  }
  options.blank = false;
  Talk again(options);
  EXPECT_EQ(again.phone.Status("fixed_nv.imei1"), "000000000000000");
  EXPECT_EQ(again.Ask(13, 2, "00 07 00 01"), "13/0 00 07 00 01 05");
}

TEST_F(StateFile, AFileThatIsNoneIsAnErrorAndStaysAsItIs) {
  for (const char* content : {"", "not json", "[]", R"({"version":99,"made":[],"items":{}})",
                              R"({"version":1,"made":[],"items":{"flash/0":"zz"}})"}) {
    std::ofstream(options.stateFile) << content;
    EXPECT_THROW(Handset(options).Start(), std::runtime_error) << content;
    std::ifstream file(options.stateFile);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), content);
  }
}

}  // namespace
