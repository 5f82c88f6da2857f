// The radio as plain bytes on the wire, without the library.
#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <thread>
#include <vector>

#include "simulator/station.h"

namespace {

using handset::Bytes;
using station::Packet;
using namespace std::chrono_literals;

constexpr uint8_t kRefused = 2;

class RadioWire : public testing::TestWithParam<bool> {
 protected:
  RadioWire() {
    handset::HandsetOptions options;
    options.startMode = 1;
    options.byteOrder = GetParam() ? handset::ByteOrder::Big : handset::ByteOrder::Little;
    phone.emplace(options);
    phone->Start();
    station.emplace(phone->Address(), GetParam());
  }

  Bytes Words(const std::vector<unsigned>& words) const {
    Bytes bytes;
    for (const unsigned word : words) {
      const auto high = static_cast<uint8_t>(word >> 8), low = static_cast<uint8_t>(word);
      bytes.push_back(GetParam() ? high : low);
      bytes.push_back(GetParam() ? low : high);
    }
    return bytes;
  }
  unsigned Word(const Packet& packet, size_t offset) const {
    const unsigned first = packet.payload.at(offset), second = packet.payload.at(offset + 1);
    return GetParam() ? first << 8 | second : second << 8 | first;
  }
  Bytes Message(unsigned id, std::vector<unsigned> parameters) const {
    std::vector<unsigned> words{id, static_cast<unsigned>(16 + 2 * parameters.size())};
    words.resize(8);
    words.insert(words.end(), parameters.begin(), parameters.end());
    return Words(words);
  }
  Packet Ask(uint8_t type, uint8_t subtype, const Bytes& payload) {
    return station->Ask(type, subtype, payload).value();
  }
  uint8_t Tell(uint8_t type, uint8_t subtype, const Bytes& payload) {
    return Ask(type, subtype, payload).subtype;
  }
  // A 32-bit field, as two words in the handset's order.
  std::vector<unsigned> Long(unsigned value) const {
    return GetParam() ? std::vector<unsigned>{0, value} : std::vector<unsigned>{value, 0};
  }
  static std::vector<unsigned> Join(std::vector<unsigned> front, std::vector<unsigned> back) {
    front.insert(front.end(), back.begin(), back.end());
    return front;
  }

  std::optional<handset::Handset> phone;
  std::optional<station::Station> station;
};

INSTANTIATE_TEST_SUITE_P(ByteOrders, RadioWire, testing::Values(true, false));

TEST_P(RadioWire, CalibrationLayerGuardsTheRadio) {
  const Bytes afc = Message(0xA114, {62, 5, 4096, 0});
  EXPECT_EQ(Tell(10, 0, afc), kRefused) << "not active yet";
  EXPECT_EQ(Tell(10, 0, Message(0xA101, {})), 0);
  EXPECT_EQ(Tell(10, 0, afc), 0);
  EXPECT_EQ(phone->Status("radio.transmitter"), "on");
  EXPECT_EQ(Tell(10, 0, Message(0xA114, {62, 5, 4096})), kRefused) << "two bytes short";
  EXPECT_EQ(Tell(10, 0, Message(0xA103, Long(2))), kRefused) << "no such band";
  EXPECT_EQ(Tell(10, 0, Message(0xA1FF, {})), kRefused);
  EXPECT_EQ(Tell(10, 0, {0xA1}), kRefused);
  // The layer may as well be left through its item.
  EXPECT_EQ(Tell(32, 0, Words({0, 0, 27, 0, 2, 0})), 0);
  EXPECT_EQ(phone->Status("radio.transmitter"), "off");
  EXPECT_EQ(Tell(10, 0, afc), kRefused);
}

TEST_P(RadioWire, ModeChangeIsConfirmedAndDecidesOnMessages) {
  Tell(10, 0, Message(0xA101, {}));
  const Bytes gsmStep = Message(0xA119, Join(Join(Long(0), {5, 2048}), Long(2)));
  const Bytes tdStep = Message(0xA119, Join(Join(Join(Long(0), {5, 2048}), Long(2)), {0, 0}));
  struct Change {
    unsigned id;
    const char* mode;
    uint8_t gsm, td;
  };
  for (const Change& change :
       {Change{0xA12F, "TD-SCDMA", kRefused, 0}, Change{0xA12D, "GSM", 0, kRefused}}) {
    EXPECT_EQ(Ask(10, 0, Message(change.id, {0, 0})).payload.size(), 16U);
    const Packet confirmation = station->Receive().value();
    EXPECT_EQ(confirmation.type, 10);
    EXPECT_EQ(Word(confirmation, 0), change.id);
    EXPECT_EQ(Bytes(confirmation.payload.begin() + 16, confirmation.payload.end()), Bytes(4));
    EXPECT_EQ(phone->Status("radio.calibration_mode"), change.mode);
    EXPECT_EQ(Tell(10, 0, gsmStep), change.gsm);
    EXPECT_EQ(Tell(10, 0, tdStep), change.td);
    EXPECT_EQ(Tell(10, 0, Message(0xA12A, std::vector<unsigned>(22))), change.td);
  }
  // The items that change the mode are answered, and confirm nothing.
  EXPECT_EQ(Tell(32, 0, Words({0, 0, 43, 0, 0})), 0);
  EXPECT_EQ(phone->Status("radio.calibration_mode"), "TD-SCDMA");
  EXPECT_FALSE(station->Receive(station::kQuiet));
}

TEST_P(RadioWire, ExtendedReportComesInNumberedBlocks) {
  Tell(10, 0, Message(0xA101, {}));
  const Bytes next = Message(0xA126, {});
  EXPECT_EQ(Tell(10, 1, next), kRefused) << "no run";
  EXPECT_EQ(Tell(10, 1, Message(0xA124, {1, 6913, 1, 62})), kRefused) << "too many steps";
  EXPECT_EQ(Tell(10, 1, Message(0xA124, {1, 100, 1, 600})), kRefused) << "outside the band";
  Packet block = Ask(10, 1, Message(0xA124, {3000, 3999, 1, 62}));
  EXPECT_EQ(Word(block, 16), 2U);
  EXPECT_EQ(Word(block, 20), 3000U) << "behind a header of 20 bytes";
  size_t bytes = block.payload.size() - 20;
  block = Ask(10, 1, next);
  bytes += block.payload.size() - 20;
  EXPECT_EQ(bytes, 4000U);
  EXPECT_EQ(Word(block, block.payload.size() - 4), 3999U);
  EXPECT_EQ(Tell(10, 1, next), kRefused) << "behind the last block";
  EXPECT_EQ(Tell(10, 1, Message(0xA125, {})), 1);
  EXPECT_EQ(Tell(10, 1, next), kRefused);
}

TEST_P(RadioWire, RssiReadsZeroUntilTheReceiverHasSettled) {
  station->Send(104, 0, handset::ToBytes("AT+SIMGEN=-7000\r\n"));
  for (int answer = 0; answer < 2; ++answer) station->Receive();
  const Bytes read = Words({0, 0, 25, 0, 2});
  EXPECT_EQ(Tell(32, 0, Words({0, 0, 19, 0, 2, 62})), 0);
  Bytes on = Words(Join({0, 0, 29, 0, 20, 160, 0}, Join(Long(2), {18, 0, 0, 0, 0, 0})));
  on[20] = 1;
  EXPECT_EQ(Tell(32, 0, on), 0);
  for (int settling = 0; settling < 2; ++settling) EXPECT_EQ(Word(Ask(32, 1, read), 6), 0U);
  EXPECT_NE(Word(Ask(32, 1, read), 6), 0U);
}

TEST_P(RadioWire, WildAddressesAreRefusedAndChangeNothing) {
  struct Case {
    std::vector<unsigned> words;
    const char* what;
  };
  for (const Case& each : std::initializer_list<Case>{
           {{0, 0, 99, 0, 2, 7}, "no such item"},
           {{0, 2, 21, 0, 2, 7}, "no such band"},
           {{2, 0, 2, 0, 2, 7}, "no such storage"},
           {{0, 0, 2, 1, 2, 7}, "behind the item"},
           {{1, 0, 21, 0xFFFF, 2, 7}, "far behind the item"},
           {{0, 0, 2, 0, 4, 7}, "fewer bytes than announced"},
           {{0, 0, 2, 0, 0xFFFF, 7}, "far fewer bytes"},
           {{0, 0, 30, 0, 8, 1, 2, 3, 4}, "an IMEI in RAM"},
           {{0, 2, 19, 0, 2, 62}, "a channel of no band"},
           {{1, 0, 32, 0}, "half a header"},
       }) {
    EXPECT_EQ(Tell(32, 0, Words(each.words)), kRefused) << each.what;
  }
  EXPECT_EQ(Word(Ask(32, 1, Words({0, 0, 2, 0, 2})), 6), 4096U);
  EXPECT_EQ(Ask(32, 1, Words({0, 0, 23, 90, 0xFFFF})).payload.size(), 8U) << "to the item's end";
  EXPECT_EQ(Ask(32, 1, Words({0, 0, 23, 0xFFFF, 2})).payload.size(), 6U);
  EXPECT_EQ(Tell(36, 0, Words(Join(Long(1), {0xFFFF, 0}))), kRefused);
}

TEST_P(RadioWire, RestartDropsWhatWasNotCommitted) {
  const Bytes read = Words({0, 0, 2, 0, 2});
  const auto restart = [&](const char* boots) {
    Tell(12, 0, {});
    while (phone->Status("session.boots") != boots) std::this_thread::sleep_for(5ms);
  };
  Tell(32, 0, Words({0, 0, 2, 0, 2, 4000}));
  restart("2");
  EXPECT_EQ(Word(Ask(32, 1, read), 6), 4096U);
  Tell(32, 0, Words({0, 0, 2, 0, 2, 4000}));
  EXPECT_EQ(Tell(32, 0, Words({1, 0, 32, 0, 0})), 0);
  EXPECT_EQ(phone->Stored("calibration/0/2"), Words({4000})) << "the answer came before the commit";
  restart("3");
  EXPECT_EQ(Word(Ask(32, 1, read), 6), 4000U);
}

}  // namespace
