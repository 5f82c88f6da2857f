#include "link/assert_watch.h"

#include <gtest/gtest.h>

#include "support/bytes.h"

namespace merovane::test {
namespace {

TEST(AssertWatch, KnowsAnAssertReportByItsHeader) {
  for (const char* report : {"7E 00 00 00 00 00 10 FF 00 41 53", "7E 00 00 00 00 10 00 FF 01",
                             "7E 00 00 00 00 01 01 FF 02", "33 7E 7E 7E 00 00 00 00 00 10 FF 02 7E",
                             "7E 01 7E 00 00 00 00 00 10 FF 00"}) {
    EXPECT_TRUE(HoldsAssertReport(Hex(report))) << report;
  }
}

TEST(AssertWatch, TakesNothingElseForOne) {
  for (const char* other :
       {"", "7E", "00 00 00 00 00 10 FF 00", "7E 00 00 00 00 00 10 FF",
        "7E 00 00 00 00 00 10 FF 03", "7E 00 00 00 00 00 10 FE 00", "7E 01 00 00 00 00 10 FF 00",
        "7E 00 00 00 01 00 10 FF 00", "7E 00 00 00 00 00 00 FF 00", "7E 7E 00 00 00 00 10 FF 03"}) {
    EXPECT_FALSE(HoldsAssertReport(Hex(other))) << other;
  }
}

}  // namespace
}  // namespace merovane::test
