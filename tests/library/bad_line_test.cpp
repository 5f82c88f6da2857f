#include <optional>
#include <thread>

#include "support/station.h"

namespace merovane::test {
namespace {

using Clock = std::chrono::steady_clock;

// A running handset; QV_RestartPhone is the command whose limit the caller sets.
class BadLine : public StationTest, public ::testing::WithParamInterface<handset::TransportKind> {
 protected:
  static constexpr uint32_t kLimitMs = 150;

  void SetUp() override {
    SwitchOn(Running(GetParam()));
    ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), 0);
    uint8_t data[4];
    while (QV_ReadMode(data, 4) != 0) {
    }
  }
  // The command's result; it must not give up before its limit.
  int32_t WaitFor(Reply reply) {
    phone->ExpectOnce(12, 0, std::move(reply));
    const auto start = Clock::now();
    const int32_t result = QV_RestartPhone(kLimitMs);
    // The library counts whole ticks.
    if (result == 11) {
      EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(kLimitMs) - 20ms);
    }
    EXPECT_LT(Clock::now() - start, kPatience);
    EXPECT_EQ(LastReported(), (Reported{11, result}));
    return result;
  }
};

TEST_P(BadLine, EndsByTheLimitWithItsCode) {
  EXPECT_EQ(WaitFor(Reply::Nothing()), 11);
  EXPECT_EQ(WaitFor(Reply::Answer(12, 2)), 39);
  EXPECT_EQ(WaitFor(Reply::Raw(handset::Bytes(5000, 0x7E))), 11);
  EXPECT_EQ(WaitFor(Reply::Raw(handset::FromHex("7e 00 00 00 00 00 08 0c 00 00 01"))), 11);
  EXPECT_EQ(WaitFor(Reply::Answer(12, 0, handset::Bytes(9300, 0x01))), 11);
  EXPECT_EQ(WaitFor(Reply::Answer(12, 0, handset::Bytes(9200, 0x11)).InPieces(1000)), 0);
  uint8_t data[4] = {};
  EXPECT_EQ(QV_ReadMode(data, 4), 0) << "the next command finds a clean line";
  EXPECT_EQ(data[3], 0x81);
}

TEST_P(BadLine, AnUnpluggedDeviceEndsACallByItsLimitAndWritesAtOnce) {
  phone->ExpectOnce(12, 0, Reply::Nothing());
  std::thread unplug([&] {
    EXPECT_TRUE(phone->NextFrame(12, 0, kPatience));
    phone->UnplugPort();
  });
  EXPECT_EQ(QV_RestartPhone(1000), 11);
  unplug.join();
  EXPECT_EQ(QV_RestartPhone(1000), 3);
  EXPECT_EQ(LastReported(), (Reported{11, 3}));
  uint8_t data[16];
  uint32_t length = 16;
  EXPECT_EQ(QV_Read(data, &length, 50), 9);
  EXPECT_EQ(QV_EndPhoneTest(), 0);
  EXPECT_EQ(QV_BeginPhoneTest(kPort, 115200), 2);
  phone->PlugPort();
  EXPECT_EQ(QV_BeginPhoneTest(kPort, 115200), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Channels, BadLine, ::testing::Values(handset::TransportKind::Pty, handset::TransportKind::Tcp),
    [](const auto& each) { return each.param == handset::TransportKind::Pty ? "Pty" : "Tcp"; });

}  // namespace
}  // namespace merovane::test
