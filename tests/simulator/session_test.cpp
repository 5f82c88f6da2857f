// The same life of a handset over every kind of port, in both byte orders.
#include <gmock/gmock.h>

#include <optional>
#include <string>

#include "handset/handset.h"
#include "simulator/station.h"

namespace {

using handset::ByteOrder;
using handset::Handset;
using handset::HandsetState;
using handset::Power;
using handset::TransportKind;
using station::Frame;
using station::kPatience;
using station::kQuiet;
using station::Station;
using testing::ElementsAre;
using namespace std::chrono_literals;

struct Port {
  TransportKind transport;
  ByteOrder order;
};

class Session : public testing::TestWithParam<Port> {
 protected:
  static bool BigEndian() { return GetParam().order == ByteOrder::Big; }

  // Booting, or in a mode at once.
  void Start(std::optional<uint8_t> mode = {}) {
    handset::HandsetOptions options;
    options.transport = GetParam().transport;
    options.byteOrder = GetParam().order;
    options.startFrameInterval = 20ms;
    options.traceInterval = 5ms;
    options.startMode = mode;
    phone.emplace(options);
    phone->Start();
    line.emplace(phone->Address(), BigEndian());
  }

  std::optional<Handset> phone;
  std::optional<Station> line;
};

TEST_P(Session, BootsUntilAStartModeIsChosen) {
  Start();
  std::string wire = handset::ToHex(line->ReadRaw());
  EXPECT_THAT(wire, testing::HasSubstr(BigEndian() ? "7e 00 00 00 00 00 08 fe 01 7e"
                                                   : "7e 00 00 00 00 08 00 fe 01 7e"));
  line->Send(28, 0);  // Nothing but a start mode is heard now.
  line->Send(0xFE, 128 + 2, {}, 0xA3AF);
  auto answer = line->Receive();
  while (answer == Frame{0xFE, 1, {}}) answer = line->Receive();
  EXPECT_EQ(answer, (Frame{0xFE, 130, {}}));
  EXPECT_EQ(phone->State().mode, 2);
  EXPECT_EQ(phone->Status("session.camp_word"), std::to_string(0xA3AF));
  EXPECT_FALSE(line->Receive(kQuiet)) << "start frames end with the start mode";
  EXPECT_THAT(line->Ask(28, 0).value().payload, ElementsAre(0, 0, 0, 2));
}

TEST_P(Session, ModeChangesAnswerAndRestartBootsAgain) {
  Start();
  line->Send(0xFE, 128 + 17);
  EXPECT_TRUE(phone->WaitForState(
      [](const HandsetState& state) { return state.power == Power::Running; }, kPatience));
  line->Send(12, 6);
  auto answer = line->ReceiveType(12).value();
  EXPECT_EQ(answer.subtype, 6);
  EXPECT_GE(answer.payload.size(), 2u) << "the port stays";
  EXPECT_EQ(phone->State().mode, 6);

  line->Send(12, 0);
  ASSERT_TRUE(line->ReceiveType(12));
  EXPECT_EQ(line->ReceiveType(0xFE), (Frame{0xFE, 1, {}}));
  EXPECT_EQ(phone->Status("session.boots"), "2");
  EXPECT_EQ(phone->State().mode, 0);
}

TEST_P(Session, DeepSleepIsSilentAndLosesWhatWakesIt) {
  Start(1);
  line->Send(2, 4);
  ASSERT_TRUE(line->ReceiveType(152));
  line->Send(17, 2);
  ASSERT_TRUE(phone->NextFrame(17, 2));
  EXPECT_EQ(phone->State().power, Power::Asleep);
  while (line->Receive(kQuiet)) {
  }
  line->Send(28, 0);
  ASSERT_TRUE(phone->NextFrame(28, 0));
  EXPECT_EQ(phone->State().power, Power::Running);
  line->Send(28, 0);
  EXPECT_TRUE(line->ReceiveType(28));
}

TEST_P(Session, TracesStreamWhileTheyAreOn) {
  Start(1);
  line->Send(2, 4);
  line->Send(2, 6);
  EXPECT_EQ(line->ReceiveType(2).value().subtype, 6) << "only the DSP switch is answered";
  EXPECT_TRUE(line->ReceiveType(152));
  EXPECT_TRUE(line->ReceiveType(153));
  // Commands work in between.
  line->Send(28, 0);
  EXPECT_TRUE(line->ReceiveType(28));
  line->Send(2, 5);
  line->Send(2, 7);
  ASSERT_TRUE(line->ReceiveType(2));
  EXPECT_FALSE(line->Receive(kQuiet));
}

TEST_P(Session, AtCommandsAreAcknowledgedAndAnsweredLineByLine) {
  Start(1);
  const auto exchange = [&](const std::string& command, const std::vector<std::string>& lines) {
    EXPECT_EQ(line->Ask(104, 0, handset::ToBytes(command)), (Frame{213, 0, {}})) << command;
    for (const std::string& text : lines) {
      EXPECT_EQ(line->Receive(), (Frame{156, 0, handset::ToBytes(text)})) << command;
    }
  };
  exchange("at+cced=0,1\r\n", {"\r\n+CCED:460,0,6334,1021,62,48,-71,2\r\n", "\r\nOK\r\n"});
  exchange("AT+NOSUCH", {"\r\nERROR\r\n"});
  exchange("AT+CMGS=\"12345\"\r", {"\r\n> "});
  exchange("hello\r", {});
  exchange("world\x1A", {"\r\n+CMGS: 1\r\n", "\r\nOK\r\n"});
}

INSTANTIATE_TEST_SUITE_P(Ports, Session,
                         testing::Values(Port{TransportKind::Pty, ByteOrder::Big},
                                         Port{TransportKind::Pty, ByteOrder::Little},
                                         Port{TransportKind::Tcp, ByteOrder::Big}));

}  // namespace
