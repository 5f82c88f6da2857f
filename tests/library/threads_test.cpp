// Threads that use a port at once: they run one after another, and an end sends all of them away.
#include <atomic>
#include <thread>
#include <vector>

#include "support/event.h"
#include "support/station.h"

namespace merovane::test {
namespace {

struct Threads : StationTest {
  void SetUp() override {
    SwitchOn(RunningIn(1));
    ASSERT_EQ(QV_BeginPhoneTest_MT(kPort, 115200), 0);
  }
  static int32_t ReadMode() {
    uint8_t data[4] = {};
    return QV_ReadMode_MT(kPort, data, 4);
  }
};

TEST_F(Threads, OnOnePortRunOneAfterAnother) {
  std::vector<std::jthread> threads;
  threads.reserve(4);
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([] {
      for (int k = 0; k < 20; ++k) EXPECT_EQ(ReadMode(), 0);
    });
  }
}

TEST_F(Threads, AreSentAwayByTheEndOfThePort) {
  phone->ExpectOnce(12, 0, Reply::Nothing());
  std::atomic<int> sentAway = 0;
  const auto start = std::chrono::steady_clock::now();
  {
    std::jthread running([&] { sentAway += QV_RestartPhone_MT(kPort, 600'000) == 1; });
    ASSERT_TRUE(phone->NextFrame(12, 0, kPatience));
    std::jthread waiting([&] { sentAway += ReadMode() == 1; });
    // Stands at the turnstile, or comes too late to find the port.
    EXPECT_EQ(QV_ClosePrjFile_MT(kPort), 0) << "a project waits for no handset";
    EXPECT_EQ(QV_EndPhoneTest_MT(kPort), 0);
  }
  EXPECT_EQ(sentAway, 2);
  EXPECT_LT(std::chrono::steady_clock::now() - start, kPatience);
  EXPECT_EQ(QV_BeginPhoneTest_MT(kPort, 115200), 0) << "the device was closed";
  EXPECT_EQ(ReadMode(), 0);
}

TEST_F(Threads, MayBeginDriveAndEndAPortAtWill) {
  Event event;
  std::vector<std::jthread> threads;
  threads.reserve(3);
  for (int i = 0; i < 3; ++i) {
    threads.emplace_back([&event, i] {
      for (int k = 0; k < 15; ++k) {
        QV_BeginPhoneTest_MT(kPort, 115200);
        ReadMode();
        QV_EnterModeProcess_MT(kPort, 0, 1, event.Handle(), 50);
        QV_StopModeProcess_MT(kPort);
        if (i == 0) QV_EndPhoneTest_MT(kPort);
        if (i == 1) QV_EndPhoneTest();
      }
    });
  }
}

}  // namespace
}  // namespace merovane::test
