#include <optional>

#include "support/event.h"
#include "support/station.h"

namespace merovane::test {
namespace {

struct ModeProcess : StationTest {
  void Start(bool vanishesAtStart = false, std::optional<uint8_t> startMode = {}) {
    HandsetOptions options;
    options.startFrameInterval = 20ms;
    options.portVanishesAtStart = vanishesAtStart;
    options.portVanishes = true;
    options.portAbsence = 200ms;
    options.startMode = startMode;
    SwitchOn(options);
  }
  void ExpectCaught() {
    EXPECT_TRUE(event.IsSet(kPatience));
    EXPECT_TRUE(WaitUntilRunning(*phone, 3));
  }
  static uint8_t ModeRead() {
    uint8_t data[4] = {};
    EXPECT_EQ(QV_ReadMode_MT(kPort, data, 4), 0);
    return data[3];
  }

  Event event;
};

TEST_F(ModeProcess, NeedsAnEventAndAnObject) {
  EXPECT_EQ(QV_EnterModeProcess(0, 1, event.Handle(), 100), 1);
  EXPECT_EQ(LastReported(), (Reported{0, 1}));
  EXPECT_EQ(QV_EnterModeProcessEx(0, 1, 100), 1);
  EXPECT_EQ(QV_EnterModeProcess_MT(0, 1, 1, event.Handle(), 100), 4);
  EXPECT_EQ(QV_EnterModeProcess_MT(kPort, 0, 1, event.Handle(), 100), 1);
  EXPECT_EQ(QV_StopModeProcess(), 1);
  EXPECT_EQ(QV_StopModeProcess_MT(kPort), 1);
  EXPECT_EQ(QV_StopModeProcess_MT(-1), 4);
  EXPECT_EQ(QV_ResetModeProcess(0, 1, event.Handle(), 100), 1);
  EXPECT_EQ(QV_ResetModeProcess_MT(kPort, 0, 1, event.Handle(), 100), 1);
  EXPECT_EQ(QV_EnterModeProcess(1, 1, 0, 100), 4);
  EXPECT_EQ(LastReported(), (Reported{3, 4}));
  Start();
  ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), 0);
  EXPECT_EQ(QV_EnterModeProcess(0, 1, 0, 100), 4);
  EXPECT_EQ(QV_ResetModeProcess(0, 1, 0, 100), 4);
  EXPECT_EQ(LastReported(), (Reported{183, 4}));
  EXPECT_EQ(QV_EnterModeProcess_MT(kPort, 0, 1, 0, 100), 4);
  EXPECT_EQ(LastReported(), (Reported{3, 4}));
  EXPECT_EQ(QV_StopModeProcess_MT(kPort), 0) << "none was begun";
  EXPECT_EQ(LastReported(), (Reported{4, 0}));
  EXPECT_EQ(QV_EnterModeProcess_MT(kPort, 1, 1, 0, 100), 4);
  EXPECT_EQ(LastReported(), (Reported{3, 4}));
}

TEST_F(ModeProcess, CatchesABootingHandsetInTheBackground) {
  Start();
  ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), 0);
  EXPECT_EQ(QV_SetCampParam(0x01020304), 0);
  EXPECT_EQ(QV_EnterModeProcess(0, 3, event.Handle(), 0), 0);
  ExpectCaught();
  EXPECT_EQ(phone->Status("session.camp_word"), std::to_string(0x01020304));
  EXPECT_EQ(QV_StopModeProcess(), 0);
  EXPECT_EQ(LastReported(), (Reported{4, 0}));
}

TEST_F(ModeProcess, ReturnsWithTheOutcomeWhenItIsAskedTo) {
  Start(false, 5);
  ASSERT_EQ(QV_BeginPhoneTest_MT(kPort, 115200), 0);
  EXPECT_EQ(QV_EnterModeProcessEx_MT(kPort, 0, 3, 300), 16) << "it boots straight into a mode";
  EXPECT_EQ(QV_EndPhoneTest(), 0);
  Start();
  ASSERT_EQ(QV_BeginPhoneTest_MT(kPort, 115200), 0);
  EXPECT_EQ(QV_EnterModeProcessEx_MT(kPort, 0, 3, 20000), 0);
  EXPECT_TRUE(WaitUntilRunning(*phone, 3));
}

TEST_F(ModeProcess, IsEndedByStopAndByTheSessionsEnd) {
  Start(false, 5);
  ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), 0);
  EXPECT_EQ(QV_EnterModeProcess(0, 3, event.Handle(), 0), 0);
  EXPECT_EQ(QV_StopModeProcess(), 0);
  EXPECT_EQ(ModeRead(), 0x85);
  EXPECT_EQ(QV_EnterModeProcess(0, 3, event.Handle(), 0), 0);
  EXPECT_EQ(QV_EndPhoneTest(), 0);
  EXPECT_FALSE(event.IsSet());
}

TEST_F(ModeProcess, FollowsAHandsetWhosePortComesGoesAndComesBack) {
  Start(true);
  phone->UnplugPort();
  EXPECT_EQ(QV_EnterModeProcess_MT(kPort, 1, 3, event.Handle(), 60000), 0);
  EXPECT_FALSE(event.IsSet());
  phone->PlugPort();
  ExpectCaught();
  EXPECT_EQ(ModeRead(), 0x83);
  EXPECT_EQ(QV_GetUsbPort(), 0) << "tells of the default form only";
  // The default form finds the number, too, and leaves the device closed.
  Start(true);
  phone->UnplugPort();
  EXPECT_EQ(QV_EnterModeProcess(1, 3, event.Handle(), 60000), 0);
  phone->PlugPort();
  ExpectCaught();
  EXPECT_EQ(QV_GetUsbPort(), kPort);
  EXPECT_EQ(QV_StopModeProcess(), 0);
  ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), 0);
}

TEST_F(ModeProcess, ReopensThePortAfterAReset) {
  Start(false, 5);
  ASSERT_EQ(QV_BeginPhoneTest_MT(kPort, 115200), 0);
  // Another one's arrives first.
  RunningHandset other(1, kPort + 1);
  other.phone.UnplugPort();
  EXPECT_EQ(QV_ResetModeProcess_MT(kPort, 1, 1, event.Handle(), 60000), 0);
  other.phone.PlugPort();
  ExpectCaught();
  EXPECT_EQ(ModeRead(), 0x83);
}

}  // namespace
}  // namespace merovane::test
