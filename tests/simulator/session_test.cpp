#include <gmock/gmock.h>

#include <string>

#include "handset/handset.h"
#include "simulator/station.h"

namespace {

using handset::ByteOrder;
using handset::Bytes;
using handset::Handset;
using handset::HandsetOptions;
using handset::HandsetState;
using handset::Power;
using handset::TransportKind;
using station::kPatience;
using station::kQuiet;
using station::Packet;
using station::Station;
using testing::ElementsAre;
using namespace std::chrono_literals;

// The same life of a handset over every kind of port, in both byte orders.
struct Port {
  TransportKind transport;
  ByteOrder order;
};

class Session : public testing::TestWithParam<Port> {
 protected:
  static HandsetOptions Options() {
    HandsetOptions options;
    options.transport = GetParam().transport;
    options.byteOrder = GetParam().order;
    options.startFrameInterval = 20ms;
    options.traceInterval = 5ms;
    return options;
  }
  static bool BigEndian() { return GetParam().order == ByteOrder::Big; }

  static bool Running(const HandsetState& state) { return state.power == Power::Running; }
};

TEST_P(Session, BootsUntilAStartModeIsChosen) {
  Handset phone(Options());
  phone.Start();
  Station line(phone.Address(), BigEndian());

  std::string wire = handset::ToHex(line.ReadRaw());
  EXPECT_THAT(wire, testing::HasSubstr(BigEndian() ? "7e 00 00 00 00 00 08 fe 01 7e"
                                                   : "7e 00 00 00 00 08 00 fe 01 7e"));
  line.Send(28, 0);  // Nothing but a start mode is heard now.
  line.Send(0xFE, 128 + 2, {}, 0xA3AF);
  std::optional<Packet> answer;
  do {
    answer = line.Receive();
    ASSERT_TRUE(answer);
    ASSERT_EQ(answer->type, 0xFE);
  } while (answer->subtype == 1);
  EXPECT_EQ(answer->subtype, 130);
  EXPECT_EQ(phone.State().mode, 2);
  EXPECT_EQ(phone.Status("session.camp_word"), std::to_string(0xA3AF));
  EXPECT_FALSE(line.Receive(kQuiet)) << "start frames end with the start mode";

  answer = line.Ask(28, 0);
  ASSERT_TRUE(answer);
  EXPECT_THAT(answer->payload, ElementsAre(0, 0, 0, 2));
}

TEST_P(Session, ModeChangesAnswerAndRestartBootsAgain) {
  Handset phone(Options());
  phone.Start();
  Station line(phone.Address(), BigEndian());
  line.Send(0xFE, 128 + 17);
  EXPECT_TRUE(phone.WaitForState(Running, kPatience));
  line.Send(12, 6);
  auto answer = line.ReceiveType(12);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->subtype, 6);
  EXPECT_GE(answer->payload.size(), 2u) << "the port stays";
  EXPECT_EQ(phone.State().mode, 6);

  line.Send(12, 0);
  ASSERT_TRUE(line.ReceiveType(12));
  auto start = line.ReceiveType(0xFE);
  ASSERT_TRUE(start);
  EXPECT_EQ(start->subtype, 1);
  EXPECT_EQ(phone.Status("session.boots"), "2");
  EXPECT_EQ(phone.State().mode, 0);
}

TEST_P(Session, DeepSleepIsSilentAndLosesWhatWakesIt) {
  HandsetOptions options = Options();
  options.startMode = 1;
  Handset phone(options);
  phone.Start();
  Station line(phone.Address(), BigEndian());
  line.Send(2, 4);
  ASSERT_TRUE(line.ReceiveType(152));
  line.Send(17, 2);
  ASSERT_TRUE(phone.NextFrame(17, 2));
  EXPECT_EQ(phone.State().power, Power::Asleep);
  while (line.Receive(kQuiet)) {
  }
  line.Send(28, 0);
  ASSERT_TRUE(phone.NextFrame(28, 0));
  EXPECT_EQ(phone.State().power, Power::Running);
  line.Send(28, 0);
  EXPECT_TRUE(line.ReceiveType(28));
}

TEST_P(Session, TracesStreamWhileTheyAreOn) {
  HandsetOptions options = Options();
  options.startMode = 1;
  Handset phone(options);
  phone.Start();
  Station line(phone.Address(), BigEndian());
  line.Send(2, 4);
  line.Send(2, 6);
  auto dspSwitch = line.ReceiveType(2);
  ASSERT_TRUE(dspSwitch);
  EXPECT_EQ(dspSwitch->subtype, 6) << "only the DSP switch is answered";
  EXPECT_TRUE(line.ReceiveType(152));
  EXPECT_TRUE(line.ReceiveType(153));
  // Commands work in between.
  line.Send(28, 0);
  EXPECT_TRUE(line.ReceiveType(28));
  line.Send(2, 5);
  line.Send(2, 7);
  ASSERT_TRUE(line.ReceiveType(2));
  EXPECT_FALSE(line.Receive(kQuiet));
}

TEST_P(Session, AtCommandsAreAcknowledgedAndAnsweredLineByLine) {
  HandsetOptions options = Options();
  options.startMode = 1;
  Handset phone(options);
  phone.Start();
  Station line(phone.Address(), BigEndian());
  auto ask = [&](const std::string& text) {
    line.Send(104, 0, handset::ToBytes(text));
    auto acknowledged = line.Receive();
    EXPECT_TRUE(acknowledged && acknowledged->type == 213 && acknowledged->subtype == 0);
  };
  auto next = [&] {
    auto packet = line.Receive();
    return packet && packet->type == 156 && packet->subtype == 0 ? packet->Text() : "nothing";
  };
  ask("AT\r\n");
  EXPECT_EQ(next(), "\r\nOK\r\n");
  ask("at+cced=0,1\r\n");
  EXPECT_EQ(next(), "\r\n+CCED:460,0,6334,1021,62,48,-71,2\r\n");
  EXPECT_EQ(next(), "\r\nOK\r\n");
  ask("AT+NOSUCH");
  EXPECT_EQ(next(), "\r\nERROR\r\n");
  ask("AT+CMGS=\"12345\"\r");
  EXPECT_EQ(next(), "\r\n> ");
  ask("hello\r");
  ask("world\x1A");
  EXPECT_EQ(next(), "\r\n+CMGS: 1\r\n");
  EXPECT_EQ(next(), "\r\nOK\r\n");
  ask("AT+CGSN\r\n");
  EXPECT_EQ(next().size(), 2u + 15 + 2);
}

TEST_P(Session, UnknownCommandsAreRefused) {
  HandsetOptions options = Options();
  options.startMode = 1;
  Handset phone(options);
  phone.Start();
  Station line(phone.Address(), BigEndian());
  auto refusal = line.Ask(201, 9, {1, 2, 3});
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->type, 201);
  EXPECT_EQ(refusal->subtype, 2);
}

TEST_P(Session, AssertsAreReportedWhenAsked) {
  HandsetOptions options = Options();
  options.startMode = 1;
  Handset phone(options);
  phone.Start();
  Station line(phone.Address(), BigEndian());
  ASSERT_TRUE(line.Ask(28, 0));
  phone.Assert(1);
  auto report = line.Receive();
  ASSERT_TRUE(report);
  EXPECT_EQ(report->type, 0xFF);
  EXPECT_EQ(report->subtype, 1);
  EXPECT_THROW(phone.Assert(3), std::invalid_argument);
}

INSTANTIATE_TEST_SUITE_P(Ports, Session,
                         testing::Values(Port{TransportKind::Pty, ByteOrder::Big},
                                         Port{TransportKind::Pty, ByteOrder::Little},
                                         Port{TransportKind::Tcp, ByteOrder::Big}),
                         [](const auto& param) {
                           std::string name =
                               param.param.transport == TransportKind::Pty ? "Pty" : "Tcp";
                           return name + (param.param.order == ByteOrder::Big ? "Big" : "Little");
                         });

}  // namespace
