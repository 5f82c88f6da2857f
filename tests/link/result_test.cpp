#include "link/result.h"

#include <gtest/gtest.h>

#include "brimwell/brimwell.h"
#include "link/error_reporter.h"

namespace merovane::test {
namespace {

TEST(ResultNames, AreThePublicOnesAndNoneForARefusal) {
  EXPECT_EQ(ResultName(Result::Success), "PC_ERR_SUCCESS");
  EXPECT_EQ(ResultName(Result::NoFrame), "PC_ERR_CAN_NOT_REC_TWO_FLAG");
  EXPECT_EQ(ResultName(Result::PathNotFound), "PC_ERR_DL_USERCANCEL");
  EXPECT_EQ(ResultName(Result::WifiFailed), "PC_ERR_WIFI_OPER_FAIL");
  EXPECT_EQ(static_cast<int>(Result::WifiFailed), 38);
  EXPECT_EQ(ResultName(Result::Refused), "");
  for (const int other : {40, -1, -2}) EXPECT_EQ(ResultName(static_cast<Result>(other)), "SUCCESS");
}

TEST(ErrorReporter, ReportsUnderTheOperationBegunLast) {
  const auto last = [] {
    BRIMWELL_ERROR error{};
    EXPECT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &error), 1);
    return error;
  };
  ErrorReporter errors;
  errors.BeginOperation(38);
  BRIMWELL_ERROR none{};
  EXPECT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &none), 0) << "cleared when it begins";
  EXPECT_EQ(errors.Report(Result::Refused), Result::Refused);
  EXPECT_EQ(last().operation, 38u);
  EXPECT_EQ(last().code, 39);
  EXPECT_EQ(last().flag, 0);
  errors.Report(Result::Success);
  EXPECT_EQ(last().operation, 38u) << "the operation stands until the next one";
  errors.ClearReport();
  errors.Report(Result::PortNotOpen);
  EXPECT_EQ(last().operation, 0u);
  EXPECT_EQ(last().code, 1);
}

}  // namespace
}  // namespace merovane::test
