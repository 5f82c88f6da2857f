// What a handset says and keeps silent about. Boots, modes, traces and AT commands over every kind
// of port and in both byte orders are the library's tests.
#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

#include "simulator/on_the_line.h"

namespace {

using handset::Frame;
using handset::Power;
using merovane::test::kQuiet;
using namespace std::chrono_literals;

struct Session : testing::Test {
  // Booting, or in a mode at once.
  void Start(std::optional<std::uint8_t> mode = {}) {
    handset::HandsetOptions options;
    options.startFrameInterval = 20ms;
    options.traceInterval = 5ms;
    options.startMode = mode;
    both.emplace(options);
    phone = &both->phone;
    line = &both->line;
  }

  std::optional<merovane::test::OnTheLine> both;
  handset::Handset* phone = nullptr;
  merovane::test::WireStation* line = nullptr;
};

TEST_F(Session, BootsUntilAStartModeIsChosen) {
  Start();
  line->Send(28, 0);  // Nothing but a start mode is heard now.
  line->Send(0xFE, 128 + 2);
  auto answer = line->Receive();
  while (answer == Frame{0xFE, 1, {}}) answer = line->Receive();
  EXPECT_EQ(answer, (Frame{0xFE, 130, {}}));
  EXPECT_FALSE(line->Receive(kQuiet)) << "start frames end with the start mode";
  EXPECT_EQ(phone->State().mode, 2);

  EXPECT_GE(line->Ask(12, 6).value().payload.size(), 2u) << "the port stays";
  EXPECT_EQ(line->Ask(12, 0).value().type, 12);
  EXPECT_EQ(line->Receive(), (Frame{0xFE, 1, {}}));
  EXPECT_EQ(phone->Status("session.boots"), "2");
  EXPECT_EQ(phone->State().mode, 0);
}

TEST_F(Session, DeepSleepIsSilentAndLosesWhatWakesIt) {
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

TEST_F(Session, TracesStreamWhileTheyAreOn) {
  Start(1);
  line->Send(2, 4);
  line->Send(2, 6);
  EXPECT_EQ(line->ReceiveType(2).value().subtype, 6) << "only the DSP switch is answered";
  EXPECT_TRUE(line->ReceiveType(152));
  EXPECT_TRUE(line->ReceiveType(153));
  line->Send(2, 5);
  line->Send(2, 7);
  ASSERT_TRUE(line->ReceiveType(2));
  EXPECT_FALSE(line->Receive(kQuiet));
}

TEST_F(Session, AtCommandsAreAcknowledgedAndAnsweredLineByLine) {
  Start(1);
  const auto exchange = [&](const std::string& command, const std::vector<std::string>& lines) {
    EXPECT_EQ(line->Ask(104, 0, handset::ToBytes(command)), (Frame{213, 0, {}})) << command;
    for (const std::string& text : lines) {
      EXPECT_EQ(line->Receive(), (Frame{156, 0, handset::ToBytes(text)})) << command;
    }
  };
  exchange("AT+NOSUCH", {"\r\nERROR\r\n"});
  exchange("AT+CMGS=\"12345\"\r", {"\r\n> "});
  exchange("hello\r", {});
  exchange("world\x1A", {"\r\n+CMGS: 1\r\n", "\r\nOK\r\n"});
}

}  // namespace
