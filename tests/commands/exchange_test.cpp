// What all commands of one request have in common.
#include <array>

#include "commands/exchange_rows.h"

namespace merovane::test {
namespace {

using ::testing::Contains;

struct Commands : CommandFixture {
  void ForEachRow(const std::function<void(const Row&)>& body) {
    InBothByteOrders([&] {
      for (const auto& rows :
           {HandsetRows(handset.Message()), CalibrationRows(handset.Message())}) {
        for (const Row& row : rows) {
          SCOPED_TRACE(testing::PrintToString(row.logNames) + ToHex(row.request.payload.Get()));
          environment.errors.BeginOperation(kOperationBefore);
          body(row);
        }
      }
    });
  }

  Exchange& Expect(const Row& row) {
    phone.calibration = {};
    phone.calibration.currentBand = kBandBefore;
    return handset.Expect(row.request.type, row.request.subtype, row.request.payload);
  }

  void ExpectLog(const Row& row, Result result, bool logged) {
    std::vector<std::string> lines = row.logNames;
    lines.emplace_back("Clear Port Buffer");
    if (logged && !row.logNames.empty()) lines.push_back(ResultLine(result));
    EXPECT_EQ(LogText(), lines);
  }
};

TEST_F(Commands, AskDeliverAndLog) {
  ForEachRow([&](const Row& row) {
    Expect(row).Answer(row.request.type, row.answer.subtype, row.answer.payload);
    const Outcome outcome = row.command.run(phone);
    EXPECT_EQ(outcome.result, Result::Success);
    EXPECT_EQ(outcome.delivered, row.delivered);
    EXPECT_EQ(OperationOf(outcome.result), row.operation);
    ExpectLog(row, outcome.result, true);
  });
}

TEST_F(Commands, WaitAsLongAsTheirLimitAndTheSettingSay) {
  settings.receiveIncrementMs = 30;
  ForEachRow([&](const Row& row) {
    Expect(row).Silent();
    const bool asks = row.timeoutMs > 0;
    Outcome outcome;
    ExpectTakes(asks ? row.timeoutMs + 30 : 0, asks ? row.silence : Result::Success,
                [&] { return (outcome = row.command.run(phone)).result; });
    const std::string untouched = ToHex(Bytes((outcome.delivered.size() + 1) / 3, 0xA5));
    EXPECT_EQ(outcome.delivered, row.failureStores.empty() ? untouched : row.failureStores);
    ExpectLog(row, outcome.result, row.silence == Result::NoAnswer);
  });
}

TEST_F(Commands, PassTheLinksCodesOn) {
  ForEachRow([&](const Row& row) {
    const bool own = row.silence != Result::NoAnswer;
    const auto gives = [&](Result linksCode) {
      const Result result = own ? row.silence : linksCode;
      EXPECT_EQ(row.command.run(phone).result, result);
      ExpectLog(row, result, !own);
    };
    Expect(row).WriteFails();
    gives(Result::WriteFailed);
    if (row.timeoutMs == 0 || row.answer.subtype == 2) return;  // a refusal is the answer
    Expect(row).Answer(row.request.type, 2, "00 00 00 00");
    gives(Result::Refused);
  });
}

TEST_F(Commands, FailUnloggedWithAWifiStatusAndLoggedWithOneOfTheDsp) {
  ForEachRow([&](const Row& row) {
    const bool wifi = row.request.type == 54;
    if (!wifi && row.request.type != 50) return;
    Expect(row).Answer(row.request.type, row.answer.subtype, handset.Message().U32(0x100).U32(2));
    const Outcome outcome = row.command.run(phone);
    EXPECT_EQ(outcome.result, wifi ? Result::WifiFailed : Result::DspDebugFailed);
    ExpectLog(row, outcome.result, !wifi);
    EXPECT_EQ(outcome.delivered, ToHex(Bytes((outcome.delivered.size() + 1) / 3, 0xA5)));
  });
}

// Leaves bytes on the stack that no answer holds, where the next call's buffers will stand.
[[gnu::noinline]] void SoilStack() {
  std::array<volatile std::uint8_t, 60'000> soil;
  for (auto& byte : soil) byte = 0xEE;
}

TEST_F(Commands, TakeNothingThatStandsAfterAnAnswer) {
  settings.usefulLog = false;
  ForEachRow([&](const Row& row) {
    const Bytes& whole = row.answer.payload.Get();
    for (auto end = whole.begin(); end != whole.end(); ++end) {
      const Bytes cut(whole.begin(), end);
      SCOPED_TRACE(cut.size());
      Expect(row).Answer(row.request.type, row.answer.subtype, cut);
      SoilStack();
      const Outcome outcome = row.command.run(phone);
      if (outcome.result != Result::Success) {
        EXPECT_THAT(row.shortResults, Contains(outcome.result));
      }
      EXPECT_EQ(outcome.delivered.find("EE"), std::string::npos) << outcome.delivered;
    }
  });
}

TEST_F(Commands, RefuseNullPointersUnderTheirOperation) {
  ForEachRow([&](const Row& row) {
    if (!row.command.runWithNull) return;
    EXPECT_EQ(row.command.runWithNull(phone), Result::InvalidParam);
    EXPECT_EQ(OperationOf(Result::InvalidParam), row.operation);
  });
  EXPECT_THAT(Log(), ::testing::IsEmpty());
}

}  // namespace
}  // namespace merovane::test
