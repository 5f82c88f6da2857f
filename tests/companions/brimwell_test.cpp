#include "brimwell/brimwell.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

constexpr auto kModule = BRIMWELL_MODULE_PHONE_COMMAND;
constexpr auto kOtherModule = static_cast<E_MODULE_TYPE>(7);

class Brimwell : public ::testing::Test {
 protected:
  void SetUp() override { Spec_ClearErrorCode(BRIMWELL_ERRORS_ALL); }

  // The last report; fails the test when there is none.
  static BRIMWELL_ERROR Last(E_MODULE_TYPE module = kModule) {
    BRIMWELL_ERROR error{};
    EXPECT_EQ(Spec_GetLastError(module, &error), 1);
    return error;
  }
  static bool HasNone(E_MODULE_TYPE module) {
    BRIMWELL_ERROR error{};
    return Spec_GetLastError(module, &error) == 0;
  }
};

TEST_F(Brimwell, KeepsTheLastReportOfEachModule) {
  EXPECT_TRUE(HasNone(kModule));
  EXPECT_EQ(Spec_SetErrorCode(kModule, 40, 11, 0), 0x0100280Bu);
  EXPECT_EQ(Spec_SetErrorCode(kOtherModule, 272, 39, 5), 0x07011027u);
  EXPECT_EQ(Last().operation, 40u);
  EXPECT_EQ(Last().code, 11);
  const std::uint32_t sequence = Last().sequence;
  EXPECT_EQ(Spec_SetErrorCode(kModule, 41, 0, 0), 0u);
  EXPECT_EQ(Last().operation, 41u);
  EXPECT_EQ(Last().code, 0);
  EXPECT_EQ(Last().sequence, sequence + 2);
  EXPECT_EQ(Last(kOtherModule).code, 39);
  EXPECT_EQ(Last(kOtherModule).flag, 5);
  EXPECT_EQ(Spec_GetLastError(kOtherModule, nullptr), 0);
  EXPECT_EQ(Spec_SetErrorCode(kModule, 1, static_cast<std::uint32_t>(-1), 0), 0x010001FFu);
  EXPECT_EQ(Last().code, -1) << "as it was reported";
}

TEST_F(Brimwell, ClearingTheLastLeavesEarlierModulesAlone) {
  Spec_SetErrorCode(kOtherModule, 1, 2, 0);
  Spec_SetErrorCode(kModule, 3, 4, 0);
  Spec_ClearErrorCode(BRIMWELL_ERRORS_LAST);
  Spec_ClearErrorCode(BRIMWELL_ERRORS_LAST);
  EXPECT_TRUE(HasNone(kModule));
  EXPECT_FALSE(HasNone(kOtherModule));
  Spec_ClearErrorCode(BRIMWELL_ERRORS_ALL);
  EXPECT_TRUE(HasNone(kOtherModule));
}

TEST_F(Brimwell, ReportsFromManyThreadsAreAllCounted) {
  Spec_SetErrorCode(kModule, 1, 1, 0);
  const std::uint32_t before = Last().sequence;
  {
    std::vector<std::jthread> threads;
    for (std::uint32_t i = 0; i < 4; ++i) {
      threads.emplace_back([i] {
        for (std::uint32_t n = 0; n < 500; ++n) {
          Spec_SetErrorCode(static_cast<E_MODULE_TYPE>(i), n, 1, 0);
          Spec_ClearErrorCode(BRIMWELL_ERRORS_LAST);
        }
      });
    }
  }
  Spec_SetErrorCode(kModule, 1, 1, 0);
  EXPECT_EQ(Last().sequence, before + 4 * 500 + 1);
}

}  // namespace
