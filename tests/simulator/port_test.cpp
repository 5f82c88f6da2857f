#include <fcntl.h>
#include <gmock/gmock.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>

#include "handset/handset.h"
#include "simulator/station.h"

namespace {

using handset::Bytes;
using handset::Handset;
using handset::HandsetOptions;
using handset::HandsetState;
using handset::Power;
using handset::TransportKind;
using station::kPatience;
using station::kQuiet;
using station::Station;
using station::WaitForPath;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

HandsetOptions Running(TransportKind transport = TransportKind::Pty) {
  HandsetOptions options;
  options.transport = transport;
  options.startMode = 1;
  return options;
}

fs::path TemporaryName(const std::string& name) {
  return fs::path(testing::TempDir()) / (name + "." + std::to_string(getpid()));
}

bool HasStation(const HandsetState& state) { return state.stationConnected; }
bool HasNoStation(const HandsetState& state) { return !state.stationConnected; }

TEST(PtyPort, LinkIsReplacedAndRemovedButNothingElseIs) {
  HandsetOptions options = Running();
  fs::path link = TemporaryName("link");
  options.link = link.string();
  fs::create_symlink("/nowhere", link);
  {
    Handset phone(options);
    phone.Start();
    EXPECT_EQ(phone.DevicePath(), link.string());
    Station line(link.string());
    EXPECT_TRUE(line.Ask(28, 0));
  }
  EXPECT_FALSE(fs::exists(fs::symlink_status(link)));

  std::ofstream(link) << "a station's own file";
  Handset phone(options);
  EXPECT_THROW(phone.Start(), std::runtime_error);
  EXPECT_TRUE(fs::is_regular_file(link));
  fs::remove(link);
}

TEST(PtyPort, NothingThatWasSaidToNobodyGreetsAStation) {
  HandsetOptions options = Running();
  options.startMode.reset();
  options.startFrameInterval = 1ms;
  Handset phone(options);
  phone.Start();
  {
    Station line(phone.Address());
    ASSERT_TRUE(phone.WaitForState(HasStation, kPatience));
    std::this_thread::sleep_for(20ms);  // Start frames that this station never reads.
  }
  ASSERT_TRUE(phone.WaitForState(HasNoStation, kPatience));
  phone.OnFrame(0xFE, 131, handset::Reply::Answer(0xFE, 131));
  Station next(phone.Address());
  next.Send(0xFE, 128 + 2);
  ASSERT_TRUE(phone.NextFrame(0xFE, 130));
  // A few that were sent since it opened, not twenty.
  int starts = 0;
  for (auto packet = next.Receive(); packet && packet->subtype == 1; packet = next.Receive()) {
    ++starts;
  }
  EXPECT_LT(starts, 20);
}

TEST(PtyPort, BytesOfAStationThatLeftAtOnceAreHeard) {
  Handset phone(Running());
  phone.Start();
  for (int i = 0; i < 5; ++i) {
    Station(phone.Address()).Send(28, 0);
    EXPECT_TRUE(phone.NextFrame(28, 0));
  }
}

TEST(PtyPort, AStationThatDoesNotReadGetsAnswersLaterAndLosesTraces) {
  HandsetOptions options = Running();
  options.traceInterval = 1ms;
  Handset phone(options);
  phone.Start();
  Station line(phone.Address());
  line.Send(2, 4);
  constexpr int kRequests = 200;
  for (int i = 0; i < kRequests; ++i) line.Send(104, 0, Bytes(1000, 'x'));
  for (int i = 0; i < kRequests; ++i) ASSERT_TRUE(phone.NextFrame(104, 0));
  int acknowledged = 0;
  while (acknowledged < kRequests && line.ReceiveType(213)) ++acknowledged;
  EXPECT_EQ(acknowledged, kRequests);
}

TEST(PtyPort, RestartWithAVanishingPortAnswersFirstAndComesBack) {
  HandsetOptions options = Running();
  options.startMode.reset();
  options.startFrameInterval = 20ms;
  options.portVanishes = true;
  options.portAbsence = 100ms;
  Handset phone(options);
  phone.Start();
  Station line(phone.Address());
  line.Send(0xFE, 129);
  line.Send(12, 0);
  auto answer = line.ReceiveType(12);
  ASSERT_TRUE(answer);
  EXPECT_LT(answer->payload.size(), 2u) << "the station must not count on the port";
  EXPECT_TRUE(line.WaitForHangup());
  ASSERT_TRUE(WaitForPath(phone.DevicePath(), true));
  Station again(phone.Address());
  auto start = again.Receive();
  ASSERT_TRUE(start);
  EXPECT_EQ(start->type, 0xFE);

  // A mode change brings it back in that mode.
  again.Send(0xFE, 129);
  again.Send(12, 9);
  EXPECT_TRUE(again.ReceiveType(12));
  EXPECT_TRUE(phone.WaitForState(
      [](const HandsetState& s) { return s.power == Power::Running && s.mode == 9; }, kPatience));
}

TEST(PtyPort, ComesBackAsAnotherDeviceOnceAStartModeIsChosen) {
  HandsetOptions options = Running();
  options.startMode.reset();
  options.portVanishesAtStart = true;
  options.portAbsence = 60min;
  options.timeScale = 0.00002;  // The handset's hour is soon over.
  Handset phone(options);
  phone.Start();
  Station line(phone.Address());
  line.Send(0xFE, 128 + 10);
  auto acknowledged = line.Receive();
  while (acknowledged && acknowledged->subtype == 1) acknowledged = line.Receive();
  ASSERT_TRUE(acknowledged);
  EXPECT_EQ(acknowledged->subtype, 138);
  EXPECT_TRUE(line.WaitForHangup());
  EXPECT_TRUE(phone.WaitForState([](const HandsetState& s) { return s.mode == 10; }, kPatience));
  EXPECT_TRUE(Station(phone.Address()).Ask(28, 0));
}

TEST(PtyPort, VanishesAndAppearsOnDemand) {
  Handset phone(Running());
  phone.Start();
  std::string path = phone.DevicePath();
  Station line(path);
  phone.UnplugPort();
  EXPECT_FALSE(fs::exists(path));
  EXPECT_TRUE(line.WaitForHangup());
  phone.PlugPort();
  EXPECT_TRUE(Station(path).Ask(28, 0));
  phone.VanishPort(30ms);
  EXPECT_TRUE(WaitForPath(path, true));
  EXPECT_TRUE(Station(path).Ask(28, 0)) << "it stayed on all the while";
}

TEST(TcpPort, TakesOneStationAfterAnother) {
  Handset phone(Running(TransportKind::Tcp));
  phone.Start();
  EXPECT_EQ(phone.DevicePath(), "socket://" + phone.Address());
  EXPECT_EQ(phone.Address().rfind("127.0.0.1:", 0), 0u);
  Station second = [&] {
    Station first(phone.Address());
    EXPECT_TRUE(first.Ask(28, 0));
    return Station(phone.Address());
  }();
  EXPECT_TRUE(second.Ask(28, 0));
}

TEST(TcpPort, ComesBackUnderTheSameNumber) {
  Handset phone(Running(TransportKind::Tcp));
  phone.Start();
  Station line(phone.Address());
  ASSERT_TRUE(line.Ask(28, 0));
  phone.Disconnect();
  EXPECT_TRUE(line.WaitForHangup());
  {
    Station next(phone.Address());
    EXPECT_TRUE(next.Ask(28, 0));
  }
  phone.UnplugPort();
  EXPECT_THROW(Station{phone.Address()}, std::runtime_error);
  phone.PlugPort();
  EXPECT_TRUE(Station(phone.Address()).Ask(28, 0));
}

TEST(TcpPort, AnAddressInUseOrNoAddressIsAnError) {
  Handset phone(Running(TransportKind::Tcp));
  phone.Start();
  HandsetOptions taken = Running(TransportKind::Tcp);
  taken.tcpPort = static_cast<uint16_t>(std::stoi(phone.Address().substr(10)));
  EXPECT_THROW(Handset(taken).Start(), std::runtime_error);
  taken.address = "no address";
  EXPECT_THROW(Handset(taken).Start(), std::runtime_error);
}

TEST(SerialPort, ServesADeviceOfTheMachine) {
  int master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_TRUE(master >= 0 && grantpt(master) == 0 && unlockpt(master) == 0);
  HandsetOptions options = Running(TransportKind::Serial);
  options.serialDevice = ptsname(master);
  Handset phone(options);
  phone.Start();
  const Bytes request{0x7E, 0, 0, 0, 0, 0, 8, 28, 0, 0x7E};
  ASSERT_EQ(write(master, request.data(), request.size()), static_cast<ssize_t>(request.size()));
  ASSERT_TRUE(phone.NextFrame(28, 0));
  Bytes answer(64);
  ssize_t count = read(master, answer.data(), answer.size());
  ASSERT_GT(count, 0);
  answer.resize(static_cast<size_t>(count));
  EXPECT_EQ(handset::ToHex(answer), "7e 00 00 00 00 00 0c 1c 00 00 00 00 01 7e");
  close(master);

  options.serialDevice = "/dev/no-such-device";
  EXPECT_THROW(Handset(options).Start(), std::runtime_error);
}

TEST(AnyPort, RunsOnTheCallersThreadToo) {
  Handset phone(Running());
  std::thread caller([&] { phone.Run(); });
  ASSERT_TRUE(phone.WaitForState([](const HandsetState& s) { return s.mode == 1; }, kPatience));
  EXPECT_TRUE(Station(phone.Address()).Ask(28, 0));
  phone.Stop();
  caller.join();
}

}  // namespace
