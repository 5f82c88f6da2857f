#include <gmock/gmock.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>

#include "companions/posix/pty_peer.h"
#include "simulator/on_the_line.h"

namespace {

using handset::Bytes;
using handset::HandsetOptions;
using handset::HandsetState;
using handset::TransportKind;
using merovane::test::kPatience;
using merovane::test::Running;
using Started = merovane::test::StartedHandset;
using merovane::test::WireStation;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

HandsetOptions Booting() {
  HandsetOptions options;
  options.startFrameInterval = 1ms;
  return options;
}

TEST(PtyPort, LinkIsReplacedAndRemovedButNothingElseIs) {
  HandsetOptions options = Running();
  options.link = testing::TempDir() + "link." + std::to_string(getpid());
  fs::create_symlink("/nowhere", options.link);
  {
    Started phone(options);
    EXPECT_EQ(phone.DevicePath(), options.link);
    EXPECT_THROW(Started{options}, std::runtime_error) << "the name is another handset's";
    EXPECT_TRUE(WireStation(options.link).Ask(28, 0));
  }
  EXPECT_FALSE(fs::exists(fs::symlink_status(options.link)));

  std::ofstream(options.link) << "a station's own file";
  EXPECT_THROW(Started{options}, std::runtime_error);
  EXPECT_TRUE(fs::is_regular_file(options.link));
  fs::remove(options.link);
}

TEST(PtyPort, NothingThatWasSaidToNobodyGreetsAStation) {
  std::atomic<int> said{0};
  HandsetOptions options = Booting();
  options.transcript = [&](const std::string& line) { said += line.find("<- ") != line.npos; };
  Started phone(options);
  {
    WireStation line(phone.Address());
    ASSERT_TRUE(
        phone.WaitForState([](const HandsetState& s) { return s.stationConnected; }, kPatience));
    // Start frames that this station never reads.
    for (int before = said; said < before + 20;) std::this_thread::yield();
  }
  ASSERT_TRUE(
      phone.WaitForState([](const HandsetState& s) { return !s.stationConnected; }, kPatience));
  phone.OnFrame(0xFE, 131, handset::Reply::Answer(0xFE, 131));
  WireStation next(phone.Address());
  next.Send(0xFE, 128 + 2);
  ASSERT_TRUE(phone.NextFrame(0xFE, 130));
  // A few that were sent since it opened, not twenty.
  int starts = 0;
  for (auto frame = next.Receive(); frame && frame->subtype == 1; frame = next.Receive()) ++starts;
  EXPECT_LT(starts, 20);
}

TEST(PtyPort, BytesOfAStationThatLeftAtOnceAreHeard) {
  Started phone;
  for (int i = 0; i < 5; ++i) {
    WireStation(phone.Address()).Send(28, 0);
    EXPECT_TRUE(phone.NextFrame(28, 0));
  }
}

TEST(PtyPort, AStationThatDoesNotReadGetsAnswersLaterAndLosesTraces) {
  HandsetOptions options = Running();
  options.traceInterval = 1ms;
  Started phone(options);
  WireStation line(phone.Address());
  line.Send(2, 4);
  constexpr int kRequests = 200;
  for (int i = 0; i < kRequests; ++i) line.Send(104, 0, Bytes(1000, 'x'));
  for (int i = 0; i < kRequests; ++i) ASSERT_TRUE(phone.NextFrame(104, 0));
  int acknowledged = 0;
  while (acknowledged < kRequests && line.ReceiveType(213)) ++acknowledged;
  EXPECT_EQ(acknowledged, kRequests);
}

TEST(PtyPort, VanishesAfterTheAnswerToARestartAndComesBack) {
  HandsetOptions options = Booting();
  options.portVanishes = true;
  options.portAbsence = 60min;
  options.timeScale = 0.00002;  // The handset's hour is soon over.
  Started phone(options);
  WireStation line(phone.Address());
  line.Send(0xFE, 129);
  line.Send(12, 9);
  EXPECT_LT(line.ReceiveType(12).value().payload.size(), 2u)
      << "the station must not count on the port";
  EXPECT_TRUE(line.WaitForHangup());
  EXPECT_TRUE(phone.WaitForState([](const HandsetState& s) { return s.mode == 9; }, kPatience));
  EXPECT_TRUE(WireStation(phone.Address()).Ask(28, 0));

  phone.VanishPort(30ms);
  EXPECT_TRUE(merovane::test::WaitForPort(phone));
  EXPECT_TRUE(WireStation(phone.Address()).Ask(28, 0)) << "it stayed on all the while";
}

TEST(TcpPort, TakesOneStationAfterAnotherUnderTheSameNumber) {
  Started phone(Running(TransportKind::Tcp));
  EXPECT_EQ(phone.DevicePath(), "socket://" + phone.Address());
  EXPECT_THAT(phone.Address(), testing::StartsWith("127.0.0.1:"));
  std::optional<WireStation> first(phone.Address());
  EXPECT_TRUE(first->Ask(28, 0));
  WireStation second(phone.Address());
  first.reset();
  EXPECT_TRUE(second.Ask(28, 0));
  phone.Disconnect();
  EXPECT_TRUE(second.WaitForHangup());
  EXPECT_TRUE(WireStation(phone.Address()).Ask(28, 0));
}

TEST(TcpPort, AnAddressInUseOrNoAddressIsAnError) {
  Started phone(Running(TransportKind::Tcp));
  HandsetOptions taken = Running(TransportKind::Tcp);
  taken.tcpPort = static_cast<std::uint16_t>(std::stoi(phone.Address().substr(10)));
  EXPECT_THROW(Started{taken}, std::runtime_error);
  taken.address = "no address";
  EXPECT_THROW(Started{taken}, std::runtime_error);
}

TEST(SerialPort, ServesADeviceOfTheMachine) {
  peers::PtyPeer machine;
  HandsetOptions options = Running(TransportKind::Serial);
  options.serialDevice = machine.DeviceName();
  Started phone(options);
  machine.Send(std::string("\x7E\0\0\0\0\0\x08\x1C\0\x7E", 10));
  EXPECT_EQ(handset::ToHex(handset::ToBytes(machine.Receive(14))),
            "7e 00 00 00 00 00 0c 1c 00 00 00 00 01 7e");
}

}  // namespace
