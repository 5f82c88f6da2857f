#include "platform/device_monitor.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/clock.h"
#include "platform/serial_ports.h"
#include "platform/system.h"

namespace merovane::platform {
namespace {

using test::SetVariable;

// Ports that no machine has.
constexpr std::int32_t kPort = 211;
constexpr std::int32_t kOtherPort = 223;

constexpr std::uint32_t kSoonMs = 60'000;
constexpr std::uint32_t kFewLooksMs = 100;

struct DeviceMonitorTest : testing::Test {
  // The next arrival; 0 when none comes in time.
  std::int32_t NextArrival(std::uint32_t limitMs = kSoonMs) {
    const Deadline deadline(SystemClock(), limitMs);
    std::int32_t arrived = 0;
    while (!monitor->TakeArrival(arrived)) {
      if (deadline.Passed()) return 0;
      SystemClock().SleepMs(1);
    }
    return arrived;
  }

  test::ScratchPort port{kPort};
  test::ScratchPort other{kOtherPort};
  const std::unique_ptr<DeviceMonitor> monitor = CreateDeviceMonitor();
};

TEST_F(DeviceMonitorTest, TellsOfEachArrivalOnceAndOfNoneBeforeTheStart) {
  port.Plug();
  std::int32_t none = 0;
  EXPECT_FALSE(monitor->TakeArrival(none));
  monitor->Start();
  EXPECT_EQ(NextArrival(kFewLooksMs), 0);
  other.Plug();
  EXPECT_EQ(NextArrival(), kOtherPort);
  for (int round = 0; round < 2; ++round) {
    port.Unplug();
    EXPECT_EQ(NextArrival(kFewLooksMs), 0);
    port.Plug();
    EXPECT_EQ(NextArrival(), kPort);
  }
  port.Unplug();
  EXPECT_EQ(NextArrival(kFewLooksMs), 0);
  port.Plug();
  monitor->Start();
  EXPECT_EQ(NextArrival(kFewLooksMs), 0) << "a new start forgets what was not taken";

  for (test::ScratchPort* each : {&port, &other}) each->Unplug();
  EXPECT_EQ(NextArrival(kFewLooksMs), 0);
  for (test::ScratchPort* each : {&port, &other}) each->Plug();
  const std::set<std::int32_t> together{NextArrival(), NextArrival()};
  EXPECT_EQ(together, (std::set<std::int32_t>{kPort, kOtherPort}));
}

TEST_F(DeviceMonitorTest, PassesOverWhatIsNoNumberedDevice) {
  const std::pair<std::string, const char*> ports[] = {{"212", "socket://127.0.0.1:80"},
                                                       {"213", ""},
                                                       {"214", "."},
                                                       {"0", "/dev/null"},
                                                       {"257", "/dev/null"},
                                                       {"0211", "/dev/null"},
                                                       {"", "/dev/null"},
                                                       {"2x", "/dev/null"}};
  monitor->Start();
  for (const auto& [name, value] : ports) SetVariable("CASSORIND_COM" + name, value);
  EXPECT_EQ(NextArrival(kFewLooksMs), 0);
  for (const auto& [name, value] : ports) SetVariable("CASSORIND_COM" + name, nullptr);
}

TEST(PortDevice, IsWhatTheEnvironmentNamesElseTheSystemsOwn) {
  for (const std::int32_t port : {5, 250, 300}) {
    const std::string variable = "CASSORIND_COM" + std::to_string(port);
    EXPECT_EQ(DeviceOfPort(port), test::StandardDevice(port));
    SetVariable(variable, "socket://127.0.0.1:80");
    EXPECT_EQ(DeviceOfPort(port), "socket://127.0.0.1:80");
    SetVariable(variable, "");
    EXPECT_EQ(DeviceOfPort(port), test::StandardDevice(port)) << "an empty one says nothing";
    SetVariable(variable, nullptr);
  }
}

}  // namespace
}  // namespace merovane::platform
