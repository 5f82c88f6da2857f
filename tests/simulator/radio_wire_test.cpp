// The radio as plain bytes on the wire, without the library.
#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

#include "simulator/on_the_line.h"

namespace {

using handset::Bytes;
using handset::Frame;

constexpr std::uint8_t kRefused = 2;

struct RadioWire : testing::Test, merovane::test::OnTheLine {
  static Bytes Words(const std::vector<unsigned>& words) {
    Bytes bytes;
    for (const unsigned word : words) {
      handset::Append16(bytes, static_cast<std::uint16_t>(word), handset::ByteOrder::Big);
    }
    return bytes;
  }
  // The first element of an item's answer.
  unsigned Read(const std::vector<unsigned>& header) {
    return handset::Read16(Ask(32, 1, Words(header)).payload, 6, handset::ByteOrder::Big);
  }
  static Bytes Message(unsigned id, std::vector<unsigned> parameters) {
    std::vector<unsigned> words{id, static_cast<unsigned>(16 + 2 * parameters.size())};
    words.resize(8);
    words.insert(words.end(), parameters.begin(), parameters.end());
    return Words(words);
  }
  Frame Ask(std::uint8_t type, std::uint8_t subtype, const Bytes& payload) {
    return line.Ask(type, subtype, payload).value();
  }
  std::uint8_t Tell(std::uint8_t type, std::uint8_t subtype, const Bytes& payload) {
    return Ask(type, subtype, payload).subtype;
  }
};

TEST_F(RadioWire, CalibrationLayerGuardsTheRadio) {
  const Bytes afc = Message(0xA114, {62, 5, 4096, 0});
  EXPECT_EQ(Tell(10, 0, afc), kRefused) << "not active yet";
  EXPECT_EQ(Tell(10, 0, Message(0xA101, {})), 0);
  EXPECT_EQ(Tell(10, 0, afc), 0);
  EXPECT_EQ(phone.Status("radio.transmitter"), "on");
  EXPECT_EQ(Tell(10, 0, Message(0xA114, {62, 5, 4096})), kRefused) << "two bytes short";
  EXPECT_EQ(Tell(10, 0, Message(0xA103, {0, 2})), kRefused) << "no such band";
  EXPECT_EQ(Tell(10, 0, Message(0xA1FF, {})), kRefused);
  EXPECT_EQ(Tell(10, 0, {0xA1}), kRefused);
  // The layer may as well be left through its item.
  EXPECT_EQ(Tell(32, 0, Words({0, 0, 27, 0, 2, 0})), 0);
  EXPECT_EQ(phone.Status("radio.transmitter"), "off");
  EXPECT_EQ(Tell(10, 0, afc), kRefused);
}

TEST_F(RadioWire, ExtendedReportComesInNumberedBlocks) {
  Tell(10, 0, Message(0xA101, {}));
  const Bytes next = Message(0xA126, {});
  EXPECT_EQ(Tell(10, 1, next), kRefused) << "no run";
  EXPECT_EQ(Tell(10, 1, Message(0xA124, {1, 6913, 1, 62})), kRefused) << "too many steps";
  EXPECT_EQ(Tell(10, 1, Message(0xA124, {1, 100, 1, 600})), kRefused) << "outside the band";
  EXPECT_EQ(Tell(10, 1, Message(0xA124, {3000, 3999, 1, 62})), 1);
  EXPECT_EQ(Ask(10, 1, next).payload.size(), 2020U) << "half of it after a header";
  EXPECT_EQ(Tell(10, 1, next), kRefused) << "after the last block";
  EXPECT_EQ(Tell(10, 1, Message(0xA125, {})), 1);
  EXPECT_EQ(Tell(10, 1, next), kRefused);
}

TEST_F(RadioWire, WildAddressesAreRefusedAndChangeNothing) {
  struct Case {
    std::vector<unsigned> words;
    const char* what;
  };
  for (const Case& each : std::initializer_list<Case>{
           {{0, 0, 99, 0, 2, 7}, "no such item"},
           {{0, 2, 21, 0, 2, 7}, "no such band"},
           {{2, 0, 2, 0, 2, 7}, "no such storage"},
           {{0, 0, 2, 1, 2, 7}, "past the item"},
           {{1, 0, 21, 0xFFFF, 2, 7}, "far past the item"},
           {{0, 0, 2, 0, 4, 7}, "fewer bytes than announced"},
           {{0, 0, 2, 0, 0xFFFF, 7}, "far fewer bytes"},
           {{0, 0, 30, 0, 8, 1, 2, 3, 4}, "an IMEI in RAM"},
           {{0, 2, 19, 0, 2, 62}, "a channel of no band"},
           {{1, 0, 32, 0}, "half a header"},
       }) {
    EXPECT_EQ(Tell(32, 0, Words(each.words)), kRefused) << each.what;
  }
  EXPECT_EQ(Read({0, 0, 2, 0, 2}), 4096U);
  EXPECT_EQ(Ask(32, 1, Words({0, 0, 23, 90, 0xFFFF})).payload.size(), 8U) << "to the item's end";
  EXPECT_EQ(Ask(32, 1, Words({0, 0, 23, 0xFFFF, 2})).payload.size(), 6U);
  EXPECT_EQ(Tell(36, 0, Words({1, 1, 0xFFFF, 0})), kRefused);
}

TEST_F(RadioWire, RestartDropsWhatWasNotCommitted) {
  Tell(32, 0, Words({0, 0, 2, 0, 2, 4000}));
  Restart();
  EXPECT_EQ(Read({0, 0, 2, 0, 2}), 4096U);
  Tell(32, 0, Words({0, 0, 2, 0, 2, 4000}));
  EXPECT_EQ(Tell(32, 0, Words({1, 0, 32, 0, 0})), 0);
  EXPECT_EQ(phone.Stored("calibration/0/2"), Words({4000})) << "the answer came before the commit";
}

}  // namespace
