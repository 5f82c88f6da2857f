#include "platform/device_monitor.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/clock.h"
#include "platform/system.h"

namespace merovane::platform {
namespace {

using test::ScratchPort;
using test::SetVariable;

// Ports that no machine has.
constexpr std::int32_t kPort = 211;
constexpr std::int32_t kOtherPort = 223;

// The next arrival; 0 when none comes for as long as a few looks take.
std::int32_t NextArrival(DeviceMonitor& monitor, std::uint32_t limitMs) {
  const Deadline deadline(SystemClock(), limitMs);
  std::int32_t port = 0;
  while (!monitor.TakeArrival(port)) {
    if (deadline.Passed()) return 0;
    SystemClock().SleepMs(1);
  }
  return port;
}

constexpr std::uint32_t kSoonMs = 60'000;
constexpr std::uint32_t kFewLooksMs = 100;

TEST(DeviceMonitor, TellsOfEachArrivalOnceAndOfNoneBeforeTheStart) {
  ScratchPort port(kPort);
  ScratchPort other(kOtherPort);
  port.Plug();
  const auto monitor = CreateDeviceMonitor();
  std::int32_t none = 0;
  EXPECT_FALSE(monitor->TakeArrival(none));
  monitor->Start();
  EXPECT_EQ(NextArrival(*monitor, kFewLooksMs), 0);

  other.Plug();
  EXPECT_EQ(NextArrival(*monitor, kSoonMs), kOtherPort);
  EXPECT_EQ(NextArrival(*monitor, kFewLooksMs), 0);
}

TEST(DeviceMonitor, TellsOfADeviceThatWentAndCameBack) {
  ScratchPort port(kPort);
  port.Plug();
  const auto monitor = CreateDeviceMonitor();
  monitor->Start();
  for (int round = 0; round < 3; ++round) {
    port.Unplug();
    EXPECT_EQ(NextArrival(*monitor, kFewLooksMs), 0);
    port.Plug();
    EXPECT_EQ(NextArrival(*monitor, kSoonMs), kPort);
  }
  port.Unplug();
  EXPECT_EQ(NextArrival(*monitor, kFewLooksMs), 0);
  port.Plug();
  monitor->Start();
  EXPECT_EQ(NextArrival(*monitor, kFewLooksMs), 0) << "a new start forgets what was not taken";
}

TEST(DeviceMonitor, TellsOfEveryOneOfSeveralThatCameTogether) {
  ScratchPort port(kPort);
  ScratchPort other(kOtherPort);
  const auto monitor = CreateDeviceMonitor();
  monitor->Start();
  port.Plug();
  other.Plug();
  const std::set<std::int32_t> arrived{NextArrival(*monitor, kSoonMs),
                                       NextArrival(*monitor, kSoonMs)};
  EXPECT_EQ(arrived, (std::set<std::int32_t>{kPort, kOtherPort}));
}

TEST(DeviceMonitor, PassesOverWhatIsNoNumberedDevice) {
  const std::pair<std::string, const char*> variables[] = {
      {"CASSORIND_COM212", "socket://127.0.0.1:80"},
      {"CASSORIND_COM213", ""},
      {"CASSORIND_COM214", "."},
      {"CASSORIND_COM0", "/dev/null"},
      {"CASSORIND_COM257", "/dev/null"},
      {"CASSORIND_COM0211", "/dev/null"},
      {"CASSORIND_COM", "/dev/null"},
      {"CASSORIND_COM2x", "/dev/null"}};
  const auto monitor = CreateDeviceMonitor();
  monitor->Start();
  for (const auto& [name, value] : variables) SetVariable(name, value);
  EXPECT_EQ(NextArrival(*monitor, kFewLooksMs), 0);
  for (const auto& [name, value] : variables) SetVariable(name, nullptr);
}

}  // namespace
}  // namespace merovane::platform
