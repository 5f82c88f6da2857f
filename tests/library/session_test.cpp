#include <thread>

#include "support/log_reader.h"
#include "support/station.h"

namespace merovane::test {
namespace {

struct Sessions : StationTest {
  static int32_t ModeOf(int32_t port) {
    uint8_t data[4] = {};
    const int32_t result = port == 0 ? QV_ReadMode(data, 4) : QV_ReadMode_MT(port, data, 4);
    return result == 0 ? data[3] : -result;
  }

  static void ExpectReported(int32_t result, uint32_t operation, int32_t code) {
    EXPECT_EQ(result, code);
    EXPECT_EQ(LastReported(), (Reported{operation, code}));
  }

  RunningHandset first{1, 7};
  RunningHandset second{2, 1};
};

TEST_F(Sessions, RefuseBadNumbersUnderTheirOperation) {
  ExpectReported(QV_BeginPhoneTest(0, 115200), 1, 4);
  ExpectReported(QV_BeginPhoneTest(-1, 115200), 1, 4);
  ExpectReported(QV_BeginPhoneTest(7, 0), 1, 4);
  ExpectReported(QV_BeginPhoneTest_MT(7, -1), 1, 4);
  ExpectReported(QV_BeginPhoneTest(9, 115200), 1, 2);  // no such device
  ExpectReported(QV_EndPhoneTest(), 2, 0);
  EXPECT_EQ(QV_EndPhoneTest_MT(0), 4);
  ExpectReported(QV_EndPhoneTest_MT(7), 0, 1);
}

TEST_F(Sessions, CommandsLookForTheirPortBeforeTheirArguments) {
  ExpectReported(QV_ChangePhoneMode(1), 0, 1);
  ExpectReported(QV_ChangePhoneMode_MT(7, 1), 0, 1);
  ExpectReported(QV_ChangePhoneMode_MT(0, 1), 0, 4);
  ExpectReported(QV_RestartPhone(0), 0, 1);
  EXPECT_EQ(QV_IsPhoneAssert(), 0);
  ASSERT_EQ(QV_BeginPhoneTest(7, 115200), 0);
  ExpectReported(QV_RestartPhone(0), 11, 4);
  // The compiler must not see that it is null.
  uint8_t* volatile none = nullptr;
  ExpectReported(QV_ReadMode_MT(7, none, 4), 12, 4);
}

TEST_F(Sessions, SeveralPortsStandSideBySide) {
  ASSERT_EQ(QV_BeginPhoneTest_MT(1, 115200), 0);
  EXPECT_EQ(ModeOf(0), -1) << "no default object from this form";
  ASSERT_EQ(QV_BeginPhoneTest(7, 115200), 0);
  EXPECT_EQ(QV_BeginPhoneTest(7, 115200), 26);
  EXPECT_EQ(QV_BeginPhoneTest_MT(7, 115200), 26);
  EXPECT_EQ(QV_BeginPhoneTest(1, 115200), 26);
  EXPECT_EQ(ModeOf(0), 0x81) << "and the default object is still the first";
  EXPECT_EQ(ModeOf(7), 0x81);
  EXPECT_EQ(ModeOf(1), 0x82);
  EXPECT_EQ(QV_EndPhoneTest_MT(7), 0);
  EXPECT_EQ(LastReported(), (Reported{2, 0}));
  EXPECT_EQ(ModeOf(0), -1);
  EXPECT_EQ(ModeOf(7), -1);
  EXPECT_EQ(ModeOf(1), 0x82);
  ASSERT_EQ(QV_BeginPhoneTest(7, 115200), 0) << "free again";
  EXPECT_EQ(QV_EndPhoneTest(), 0);
  EXPECT_EQ(ModeOf(1), -1);
}

TEST_F(Sessions, OnlyTheByteOrderReadsBack) {
  uint32_t value = 77;
  EXPECT_EQ(QV_GetProperty(4, 0, &value), 0);
  EXPECT_EQ(value, 1u);
  EXPECT_EQ(QV_SetProperty(4, 0, 0), 0);
  EXPECT_EQ(QV_GetProperty(4, 0, &value), 0);
  EXPECT_EQ(value, 0u);
  value = 77;
  for (const uint32_t property : {0u, 1u, 2u, 3u, 5u, 1000u}) {
    EXPECT_EQ(QV_GetProperty(property, 0, &value), 0);
    EXPECT_EQ(value, 77u) << property;
    EXPECT_EQ(QV_GetProperty(property, 0, nullptr), 0);
  }
  EXPECT_EQ(QV_GetProperty(4, 0, nullptr), 4);
  // Reported under the operation that stands.
  EXPECT_EQ(QV_EndPhoneTest(), 0);
  ExpectReported(QV_SetProperty(1000, 1, 1), 2, 0);
  ExpectReported(QV_GetProperty(0, 0, &value), 2, 0);
}

TEST_F(Sessions, GetAndLoseTheirUsefulLogByAProperty) {
  LogReader log(7, "UsefulLog");
  const auto logged = [&] {
    EXPECT_EQ(ModeOf(0), 0x81);
    return !log.Take().empty();
  };
  ASSERT_EQ(QV_BeginPhoneTest(7, 115200), 0);
  EXPECT_EQ(QV_SetProperty(0, 0, 1), 0);
  EXPECT_FALSE(logged()) << "it was opened before";
  EXPECT_EQ(QV_EndPhoneTest(), 0);
  ASSERT_EQ(QV_BeginPhoneTest(7, 115200), 0);
  EXPECT_TRUE(logged());
  EXPECT_EQ(QV_SetProperty(0, 1, 0), 0);
  EXPECT_FALSE(logged());
}

struct Unplugged : StationTest, ::testing::WithParamInterface<handset::TransportKind> {};

TEST_P(Unplugged, EndsACallByItsLimitAndWritesAtOnce) {
  SwitchOn(Running(GetParam()));
  ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), 0);
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

INSTANTIATE_TEST_SUITE_P(Channels, Unplugged,
                         ::testing::Values(handset::TransportKind::Pty,
                                           handset::TransportKind::Tcp),
                         [](const auto& each) {
                           return each.param == handset::TransportKind::Pty ? "Pty" : "Tcp";
                         });

}  // namespace
}  // namespace merovane::test
