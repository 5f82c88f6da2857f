#include "brimwell/brimwell.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

constexpr auto kOtherModule = static_cast<E_MODULE_TYPE>(7);

class Brimwell : public ::testing::Test {
 protected:
  void SetUp() override { Spec_ClearErrorCode(BRIMWELL_ERRORS_ALL); }
};

TEST_F(Brimwell, KeepsTheLastReportOfEachModule) {
  BRIMWELL_ERROR error{};
  EXPECT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &error), 0);

  EXPECT_EQ(Spec_SetErrorCode(BRIMWELL_MODULE_PHONE_COMMAND, 40, 11, 0), 0x0100280Bu);
  EXPECT_EQ(Spec_SetErrorCode(kOtherModule, 272, 39, 5), 0x07011027u);
  ASSERT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &error), 1);
  EXPECT_EQ(error.operation, 40u);
  EXPECT_EQ(error.code, 11);
  const std::uint32_t sequence = error.sequence;

  EXPECT_EQ(Spec_SetErrorCode(BRIMWELL_MODULE_PHONE_COMMAND, 41, 0, 0), 0u);
  ASSERT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &error), 1);
  EXPECT_EQ(error.operation, 41u);
  EXPECT_EQ(error.code, 0);
  EXPECT_EQ(error.sequence, sequence + 2);

  ASSERT_EQ(Spec_GetLastError(kOtherModule, &error), 1);
  EXPECT_EQ(error.code, 39);
  EXPECT_EQ(error.flag, 5);
  EXPECT_EQ(Spec_GetLastError(kOtherModule, nullptr), 0);
}

TEST_F(Brimwell, ClearingTheLastLeavesEarlierModulesAlone) {
  BRIMWELL_ERROR error{};
  Spec_SetErrorCode(kOtherModule, 1, 2, 0);
  Spec_SetErrorCode(BRIMWELL_MODULE_PHONE_COMMAND, 3, 4, 0);
  Spec_ClearErrorCode(BRIMWELL_ERRORS_LAST);
  Spec_ClearErrorCode(BRIMWELL_ERRORS_LAST);
  EXPECT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &error), 0);
  EXPECT_EQ(Spec_GetLastError(kOtherModule, &error), 1);
  Spec_ClearErrorCode(BRIMWELL_ERRORS_ALL);
  EXPECT_EQ(Spec_GetLastError(kOtherModule, &error), 0);
}

TEST_F(Brimwell, NegativeCodesComeBackAsReported) {
  EXPECT_EQ(Spec_SetErrorCode(BRIMWELL_MODULE_PHONE_COMMAND, 1, static_cast<std::uint32_t>(-1), 0),
            0x010001FFu);
  BRIMWELL_ERROR error{};
  ASSERT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &error), 1);
  EXPECT_EQ(error.code, -1);
}

TEST_F(Brimwell, ReportsFromManyThreadsAreAllCounted) {
  Spec_SetErrorCode(BRIMWELL_MODULE_PHONE_COMMAND, 1, 1, 0);
  BRIMWELL_ERROR before{};
  ASSERT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &before), 1);
  constexpr std::uint32_t kThreads = 4;
  constexpr std::uint32_t kReports = 500;
  std::vector<std::thread> threads;
  for (std::uint32_t i = 0; i < kThreads; ++i) {
    threads.emplace_back([i] {
      for (std::uint32_t n = 0; n < kReports; ++n) {
        Spec_SetErrorCode(static_cast<E_MODULE_TYPE>(i), n, 1, 0);
        Spec_ClearErrorCode(BRIMWELL_ERRORS_LAST);
      }
    });
  }
  for (auto& thread : threads) thread.join();
  Spec_SetErrorCode(BRIMWELL_MODULE_PHONE_COMMAND, 1, 1, 0);
  BRIMWELL_ERROR after{};
  ASSERT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &after), 1);
  EXPECT_EQ(after.sequence, before.sequence + kThreads * kReports + 1);
}

}  // namespace
