#include "commands/calibration/calibration_fixture.h"
#include "declared/gsm_calibration.h"

namespace merovane::test {
namespace {

constexpr std::size_t kReportBytes = 27648;

struct ExtendedAfc : CalibrationFixture {
  ExtendedAfc() {
    std::ranges::copy(std::array<std::uint16_t, 4>{1, 2, 3, 0x1234}, run[0].values);
    run[0].count = 16;
  }
  Result Start() { return AfcStartEx(phone, 1, run.Data()); }

  Exchange& ExpectStart() {
    return handset.Expect(10, 1, Message(0xA124, 24).U16(1).U16(2).U16(3).U16(0x1234));
  }
  Exchange& ExpectNext() { return handset.Expect(10, 1, Message(0xA126, 16)); }
  void ExpectStop() { handset.Expect(10, 1, Message(0xA125, 16)).Answer(10, 1); }
  // A block whose header announces a number of blocks; the header is part of its size.
  Payload Block(unsigned blocks, std::size_t bytes, std::uint8_t fill = 0x11) const {
    return handset.Message().Raw(Bytes(16, 0xFF)).U16(blocks).Zeros(2).Raw(Bytes(bytes - 20, fill));
  }
  bool ReportUntouched() { return run[0].report[0] == 0xA5A5 && run[0].report_bytes == 0xA5A5A5A5; }

  GuardedBuffer<QV_EXTENDED_AFC> run;
};

TEST_F(ExtendedAfc, ReportComesInBlocks) {
  InBothByteOrders([&] {
    const Fields first = handset.Message().Zeros(16).U16(3).Zeros(2).U16(0xABCD).Zeros(500);
    ExpectStart().Answer(10, 1, first);
    // The counts of further blocks mean nothing.
    ExpectNext().Answer(10, 1, Block(99, 520, 0x22));
    ExpectNext().Answer(10, 1, Block(0, 602, 0x33));
    ExpectStop();
    EXPECT_EQ(Start(), Result::Success);
    EXPECT_EQ(run[0].report_bytes, 502U + 500U + 582U);
    EXPECT_EQ(run[0].report[0], 0xABCD);
    EXPECT_EQ(run[0].report[250], 0);
    EXPECT_EQ(run[0].report[251], 0x2222);
    EXPECT_EQ(run[0].report[501], 0x3333);
    EXPECT_EQ(run[0].report[791], 0x3333);
    EXPECT_EQ(run[0].report[792], 0xA5A5) << "written after the report";
    ExpectLogged({"AfcStartEx:"});
  });
}

TEST_F(ExtendedAfc, FirstBlockAloneMakesAnEmptyReport) {
  for (const auto& [blocks, bytes] :
       {std::pair{9U, std::size_t{500}}, {0U, std::size_t{501}}, {1U, std::size_t{9000}}}) {
    ExpectStart().Answer(10, 1, Block(blocks, bytes));
    ExpectStop();
    EXPECT_EQ(Start(), Result::Success);
    EXPECT_EQ(run[0].report_bytes, 0U);
  }
  EXPECT_EQ(run[0].report[0], 0xA5A5);
  // Two more tries for a longer one, which does not come.
  ExpectStart().Answer(10, 1, Block(9, 499));
  ExpectStop();
  ExpectTakes(6000U, Result::Success, [&] { return Start(); });
}

TEST_F(ExtendedAfc, ShortAnswersAreSkippedAndEndTheReport) {
  ExpectStart().Answer(10, 1, "01").Answer(10, 1).Answer(10, 1, Block(9, 600));
  ExpectNext().Answer(10, 1).After(1500).Answer(10, 1, Block(9, 600));
  ExpectNext().Answer(10, 1, Block(9, 500));
  ExpectStop();
  EXPECT_EQ(Start(), Result::Success);
  EXPECT_EQ(run[0].report_bytes, 1160U);
}

TEST_F(ExtendedAfc, FailureEndsTheRunAndLeavesTheRecord) {
  const auto failsWith = [&](Result result, std::uint32_t waitedMs) {
    ExpectTakes(waitedMs, result, [&] { return Start(); });
  };
  ExpectStart().Silent();
  failsWith(Result::NoAnswer, 9000);
  ExpectStart().Answer(10, 1, Block(2, 600));
  ExpectNext().Silent();
  failsWith(Result::NoAnswer, 3000);
  ExpectStart().Refuse();
  failsWith(Result::Refused, 0);
  ExpectStart().WriteFails();
  failsWith(Result::WriteFailed, 0);
  ExpectStart().Answer(10, 1, Block(2, 600));
  ExpectNext().Answer(10, 1, Block(2, 600));
  handset.Expect(10, 1, Message(0xA125, 16)).Silent();
  EXPECT_EQ(Start(), Result::NoAnswer);
  EXPECT_TRUE(ReportUntouched());
}

TEST_F(ExtendedAfc, WildBlockCountEndsWhenTheReportIsFull) {
  const Payload large = Block(65535, 9100);
  ExpectStart().Answer(10, 1, large);
  for (int block = 0; block < 2; ++block) ExpectNext().Answer(10, 1, large);
  ExpectNext().Answer(10, 1, Block(0, 501));
  EXPECT_EQ(Start(), Result::MessageTooLong);
  EXPECT_TRUE(ReportUntouched());
  EXPECT_EQ(LogText().back(), ResultLine(Result::MessageTooLong));

  // Exactly full.
  ExpectStart().Answer(10, 1, Block(4, 9100));
  ExpectNext().Answer(10, 1, large);
  ExpectNext().Answer(10, 1, Block(0, 9000));
  ExpectNext().Answer(10, 1, Block(0, kReportBytes - std::size_t{2} * 9080 - 8980 + 20));
  ExpectStop();
  EXPECT_EQ(Start(), Result::Success);
  EXPECT_EQ(run[0].report_bytes, kReportBytes);
}

}  // namespace
}  // namespace merovane::test
