// What a station that behaves never sees: refusals, memory that is lost at a restart, and the file
// that keeps the rest. Well-behaved stations are the tests of the library on this handset.
#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <stdexcept>
#include <string>

#include "parts/memory/crc16.h"
#include "simulator/on_the_line.h"

namespace {

using handset::ByteOrder;
using handset::Bytes;
using handset::FromHex;
using handset::Handset;
using handset::HandsetOptions;
using handset::SerialLayout;
using handset::ToHex;
using merovane::test::OnTheLine;
using merovane::test::Running;
using testing::StartsWith;

std::string Zeros(std::size_t count) { return ToHex(Bytes(count)); }

// A handset and a station, talking in transcripts: "13/0 00 05".
struct Talk : OnTheLine {
  struct Exchange {
    std::string request, answer;
    const char* why = "";
  };
  struct Request {
    std::string text;
    const char* why = "";
  };

  using OnTheLine::OnTheLine;

  std::string Ask(const std::string& request) {
    Send(request);
    const auto answer = line.Receive();
    if (!answer) return "nothing";
    const std::string text = std::to_string(answer->type) + "/" + std::to_string(answer->subtype);
    return answer->payload.empty() ? text : text + " " + ToHex(answer->payload);
  }
  void Follow(std::initializer_list<Exchange> exchanges) {
    for (const Exchange& each : exchanges) {
      EXPECT_EQ(Ask(each.request), each.answer) << each.request << " " << each.why;
    }
  }
  // Subtype 2 of their type is all that they get.
  void Refuses(std::initializer_list<Request> requests) {
    for (const Request& each : requests) {
      const std::string type = each.text.substr(0, each.text.find('/'));
      EXPECT_EQ(Ask(each.text), type + "/2") << each.text << " " << each.why;
    }
  }
  // Commands without an answer are over when the next one is answered.
  void Tell(const std::string& request) {
    Send(request);
    EXPECT_THAT(Ask("28/0"), StartsWith("28/0"));
  }
  void Send(const std::string& request) {
    const std::size_t slash = request.find('/');
    const std::size_t blank = std::min(request.find(' '), request.size());
    line.Send(static_cast<std::uint8_t>(std::stoi(request.substr(0, slash))),
              static_cast<std::uint8_t>(std::stoi(request.substr(slash + 1, blank - slash))),
              FromHex(request.substr(blank)));
  }
};

TEST(Parts, ARestartKeepsFlashAndDropsMemory) {
  const std::string gps = "00 00 00 2c aa " + Zeros(42) + " bb " + Zeros(212);
  const std::string registers = " 00 00 00 01 20 00 00 10 00 00 00 02";
  Talk talk;
  talk.Follow({{"13/2 00 07 00 03", "13/0 00 07 00 03 00 00 00", "never written"},
               {"13/3 00 07 00 04 01 02 7d 7e", "13/0 00 07 00 04"},
               {"13/3 00 07 00 01 0a", "13/0 00 07 00 01", "the rest stays"},
               {"13/2 00 07 00 06", "13/0 00 07 00 06 0a 02 7d 7e 00 00"},
               // Two 16-bit units; read byte by byte they are as they were given.
               {"11/0 a0 04 00 14" + registers + " 01 02 03 04", "11/0 a0 04 00 10" + registers},
               {"11/0 a0 03 00 10 00 00 00 00 20 00 00 11 00 00 00 03",
                "11/0 a0 03 00 13 00 00 00 00 20 00 00 11 00 00 00 03 02 03 04"},
               {"35/0 00 00 00 04 " + gps, "35/0 00 00 00 04 00 00 00 2c " + Zeros(256)},
               {"33/0", "33/0", "test mode"},
               {"33/9 00 00 00 21", "33/0"},
               {"33/2 06 05 04 03 02 01", "33/0"},
               {"54/0 00 00 00 01", "54/0 00 00 00 00", "test mode"}});
  talk.Tell("17/18");
  EXPECT_EQ(talk.phone.Status("peripherals.camera"), "on");

  talk.Restart();
  EXPECT_EQ(talk.phone.Status("peripherals.camera"), "off");
  EXPECT_EQ(talk.phone.Status("bluetooth.test_mode"), "off");
  EXPECT_EQ(talk.phone.Status("fixed_nv.bluetooth"), "01 02 03 04 05 06");
  talk.Follow({{"13/2 00 07 00 02", "13/0 00 07 00 02 0a 02"},
               {"11/0 a0 03 00 10" + registers, "11/0 a0 03 00 14" + registers + " 00 00 00 00"},
               {"35/0 00 00 00 05 00 00 00 2c " + Zeros(256), "35/0 00 00 00 05 " + gps},
               {"33/10", "33/0 00 00 00 21"},
               {"33/3", "33/0 06 05 04 03 02 01"},
               {"54/3 00 00 00 06", "54/3 00 00 00 01", "not in test mode"},
               {"13/4", "13/0", "erase"},
               {"13/2 00 07 00 02", "13/0 00 07 00 02 00 00"}});
}

TEST(Parts, RefuseWhatNoCarefulStationSends) {
  Talk talk;
  const std::string radio = "33/4 " + Zeros(4) + " 00 00 00 4e " + Zeros(8);
  talk.Refuses({{"201/9 01 02 03", "no such command"},
                {"13/3 00 07 00 04 01", "length and data disagree"},
                {"13/2 00 07 00"},
                {"13/2 00 07 ff ff"},
                {"13/1 00 05 4a 09", "no IMEI is that short"},
                {"11/0 a0 03 00 10 00 00 00 02 20 00 00 11 00 00 00 01", "not aligned"},
                {"11/0 a0 03 00 10 00 00 00 00 20 00 ff ff 00 00 00 02", "past the region"},
                {"11/0 a0 03 00 10 00 00 00 00 ff ff ff ff 00 00 00 02", "past all memory"},
                {"11/0 a0 03 00 10 00 00 00 02 20 00 00 00 40 00 00 01", "count overflows"},
                {"11/0 a0 03 00 10 00 00 00 00 20 00 00 00 00 00 00 00", "nothing"},
                {"11/0 a0 03 00 11 00 00 00 00 20 00 00 00 00 00 00 01", "wrong total"},
                {"11/0 a0 04 00 12 00 00 00 00 20 00 00 00 00 00 00 01 aa bb", "too much data"},
                {"11/0 a0 04 00 11 00 00 00 00 00 00 00 00 00 00 00 01 aa", "read-only"},
                {"11/0 a0 05 00 10 00 00 00 00 20 00 00 00 00 00 00 01", "no operation"},
                {"11/0 a0 03 00 10 00 00"},
                {"37/9 00 ff"},
                {"95/1"},
                {"95/1 " + Zeros(255) + " 01 00 00", "its checksum is another"},
                {"1/0 01 a0 08 00 02 01 00 00", "a key in the other byte order"},
                {"35/0 " + Zeros(100)},
                {radio, "not in test mode"},
                {"33/6 00 00 00 05", "not in test mode"},
                {"33/7 00 00 00 05", "not in test mode"}});
  talk.Follow({{"33/0", "33/0"}, {radio, "33/0"}, {"33/5", "33/0"}});
  talk.Refuses(
      {{"33/6 00 00 00 4f", "no such channel"}, {"33/7 00 00 00 40", "no such DAC value"}});
  EXPECT_THAT(talk.Ask("35/0 00 00 00 09 " + Zeros(260)), StartsWith("35/0 ff ff ff ff"));

  const std::string badDsp = "50/1 00 00 00 01";
  talk.Follow({{"54/0 00 00 00 01", "54/0 00 00 00 00"},
               {"54/3 00 00 00 0d", "54/3 00 00 00 00"},
               {"54/3 00 00 00 0e", "54/3 00 00 00 02"},
               {"54/4 00 00 00 36", "54/4 00 00 00 00"},
               {"54/4 00 00 00 03", "54/4 00 00 00 02"},
               {"54/5 00 00 00 07", "54/5 00 00 00 02"},
               {"54/6 00 00 00 00", "54/6 00 00 00 02"},
               {"50/1 00 10 00 04 00 00 00 03 00 01 00 00", badDsp},
               {"50/1 00 10 7f ff 00 00 00 01 00 02 00 00", badDsp},
               {"50/2 00 00 00 04 00 00 00 02 00 00 ab cd 00 00 00 00", "50/2 00 00 00 01"}});
}

TEST(Parts, FixedNvWritesTheFieldsOfItsMaskOnly) {
  HandsetOptions options = Running();
  options.blank = true;
  Talk talk(options);
  // The third IMEI alone, in a block that holds others too.
  const std::string block = "11 " + Zeros(73) + " 4a 09 51 24 30 32 57 81 " + Zeros(24);
  const std::string kept = Zeros(74) + " 4a 09 51 24 30 32 57 81 " + Zeros(24);
  Bytes checked = FromHex(block);
  handset::Append16(checked, handset::Crc16(checked), ByteOrder::Big);
  talk.Follow({{"94/255 00 00", "94/1 " + Zeros(108)},
               {"94/16 " + ToHex(checked), "94/1 00 00"},
               {"94/255 00 00", "94/1 " + kept + " 4b 06"}});
  checked.back() ^= 1;
  talk.Refuses({{"94/16 " + ToHex(checked), "damaged"}, {"94/1 " + block}});
  talk.Follow({{"94/1 " + block + " 00 00", "94/1 00 00", "written directly"}});
  EXPECT_THAT(talk.Ask("94/255 00 00"), StartsWith("94/1 11 00"));
}

TEST(Parts, SwitchesShowWhatTheyShare) {
  Talk talk;
  const auto shown = [&](std::initializer_list<const char*> switches) {
    for (const char* each : switches) talk.Tell(each);
    std::string all;
    for (const std::string name : {"led", "lcd", "vibrator", "key_light"}) {
      all += talk.phone.Status("peripherals." + name) + " ";
    }
    return all;
  };
  EXPECT_EQ(shown({"17/4", "17/3"}), "on on on off ");
  EXPECT_EQ(shown({"17/0"}), "off on off off ");
  EXPECT_EQ(shown({"17/8", "17/16"}), "off off off on ");
}

TEST(Parts, MeasuredValuesMoveAndTheSeedRepeatsThem) {
  const auto readings = [](std::uint64_t seed) {
    HandsetOptions options = Running();
    options.seed = seed;
    Talk talk(options);
    std::string all;
    for (int i = 0; i < 20; ++i) all += talk.Ask("15/2") + "|" + talk.Ask("30/0") + "|";
    return all;
  };
  const std::string first = readings(3);
  EXPECT_EQ(first, readings(3));
  EXPECT_NE(first, readings(4));
  EXPECT_NE(first.substr(0, 30), first.substr(first.size() / 2, 30));
}

TEST(Parts, SomeWifiWordsNeverFollowTheHandsetsOrder) {
  HandsetOptions options = Running();
  options.byteOrder = ByteOrder::Little;
  Talk talk(options);
  talk.Follow({{"54/0 01 00 00 00", "54/0 00 00 00 00"},
               {"54/7 00 00 00 01 00 00 01 02", "54/7 00 00 00 00"},
               {"54/11 00 00 00 00 00 00 00 05 00 00 01 02", "54/11 00 00 00 00"},
               {"54/12 00 00 00 00 00 00 00 01 00 00 00 07", "54/12 00 00 00 00"},
               {"54/10", "54/10 00 00 00 00 01 00 00 00 07 00 00 00"},
               {"54/11 00 00 00 00 00 00 00 06 00 00 01 02", "54/11 02 00 00 00"}});
  EXPECT_EQ(talk.phone.Status("wifi.transmit_parameter"), "258");
  talk.Restart();
  talk.Follow({{"54/10", "54/10 00 00 00 00 05 00 00 00 02 01 00 00", "only set, not kept"}});
}

TEST(Parts, WifiCountsPacketsWhileTheReceiverIsOn) {
  Talk talk;
  const auto countAfter = [&](const char* command) {
    talk.Ask(command);
    return talk.Ask("54/9");
  };
  const std::string none = "54/9 " + Zeros(12);
  EXPECT_EQ(countAfter("54/0 00 00 00 01"), none);
  EXPECT_NE(countAfter("54/8 00 00 00 01"), none);
  const std::string counted = countAfter("54/8 00 00 00 00");
  EXPECT_NE(counted, none);
  EXPECT_EQ(talk.Ask("54/9"), counted);
  EXPECT_EQ(countAfter("54/8 00 00 00 02"), none);
}

TEST(Parts, ANewHandsetHasItsOwnNumbers) {
  HandsetOptions options = Running();
  options.imeis = {"356938035643809"};
  options.serialNumbers = {"LINE-7"};
  const Talk talk(options);
  EXPECT_EQ(talk.phone.Status("fixed_nv.imei1"), "356938035643809");
  EXPECT_EQ(talk.phone.Status("identity.imei_count"), "1");
  EXPECT_EQ(talk.phone.Status("identity.sn"), "LINE-7");
  options.serialNumbers = {std::string(25, 'x')};
  EXPECT_THROW(Handset{options}, std::invalid_argument);
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
    talk.Ask("13/3 00 07 00 02 01 02");
    talk.Ask("13/1 00 64");
    // On disk with the answer, not at the end: a power cut gives no notice.
    HandsetOptions copy = options;
    copy.stateFile += ".copy";
    std::filesystem::copy_file(options.stateFile, copy.stateFile);
    Talk(copy).Follow({{"13/2 00 07 00 02", "13/0 00 07 00 02 01 02"}});
    std::filesystem::remove(copy.stateFile);
  }
  options.serialLayout = SerialLayout::Production;  // Only a new handset takes the layout.
  {
    Talk again(options);
    again.Follow({{"13/0 00 64", "13/0 00 64", "emptied, not made anew"}});
    EXPECT_EQ(again.phone.Status("identity.layout"), "flash");
  }
  // A blank one loses all, and stays as empty as it was made.
  for (bool blank : {true, false}) {
    options.blank = blank;
    Talk talk(options);
    EXPECT_EQ(talk.phone.Status("fixed_nv.imei1"), "000000000000000");
    talk.Follow({{"13/2 00 07 00 01", blank ? "13/0 00 07 00 01 00" : "13/0 00 07 00 01 05"},
                 {"13/3 00 07 00 01 05", "13/0 00 07 00 01"}});
  }
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
