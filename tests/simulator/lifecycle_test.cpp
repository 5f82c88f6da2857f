#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <stdexcept>
#include <string>

#include "simulator/on_the_line.h"

namespace {

using handset::Handset;
using handset::HandsetOptions;
using handset::HandsetState;
using handset::TransportKind;
using merovane::test::kPatience;
using merovane::test::Running;
using merovane::test::StartedHandset;
using merovane::test::WireStation;

TEST(HandsetLifecycle, EachStationComesAndGoesOnce) {
  std::atomic<int> came{0};
  std::atomic<int> gone{0};
  HandsetOptions options = Running();
  options.transcript = [&](const std::string& line) {
    came += line.ends_with("station connected");
    gone += line.ends_with("station gone");
  };
  StartedHandset phone(options);
  for (int stations = 1; stations <= 2; ++stations) {
    EXPECT_TRUE(WireStation(phone.Address()).Ask(28, 0));
    ASSERT_TRUE(
        phone.WaitForState([](const HandsetState& s) { return !s.stationConnected; }, kPatience));
    phone.State();  // After whatever the departure set off.
    EXPECT_EQ(came, stations);
    EXPECT_EQ(gone, stations);
  }
}

TEST(HandsetLifecycle, ATcpPortThatWasTakenMeanwhileComesBackOnceItIsFree) {
  StartedHandset phone(Running(TransportKind::Tcp));
  auto number = static_cast<std::uint16_t>(std::stoi(phone.Address().substr(10)));
  phone.UnplugPort();
  StartedHandset other(Running(TransportKind::Tcp, number));
  EXPECT_THROW(phone.PlugPort(), std::runtime_error);
  other.Stop();
  phone.PlugPort();
  EXPECT_TRUE(WireStation(phone.Address()).Ask(28, 0));
}

TEST(HandsetLifecycle, OneThatIsNotRunningRefusesWhatNeedsItsPort) {
  Handset phone(Running());
  const std::function<void()> calls[] = {
      [&] { phone.SendFrame(28, 0); }, [&] { phone.SendRaw({1, 2}, 1); },
      [&] { phone.Assert(0); },        [&] { phone.Restart(); },
      [&] { phone.UnplugPort(); },     [&] { phone.PlugPort(); },
      [&] { phone.Disconnect(); },     [&] { phone.VanishPort(std::chrono::milliseconds(1)); }};
  for (const auto& call : calls) EXPECT_THROW(call(), std::logic_error);

  phone.Store("item", {1});
  EXPECT_EQ(phone.Status("power"), "off");
  phone.Start();
  EXPECT_THROW(phone.Start(), std::logic_error);
  EXPECT_TRUE(WireStation(phone.Address()).Ask(28, 0)) << "the second start changed nothing";
  phone.Stop();
  for (const auto& call : calls) EXPECT_THROW(call(), std::logic_error);
  EXPECT_THROW(phone.Start(), std::logic_error);
  EXPECT_EQ(phone.Stored("item"), handset::Bytes{1});
}

}  // namespace
