// What all commands have in common: request, answer, log, operation, time limit, and answers that
// are cut short.
#include <cstring>

#include "commands/test/peripherals.h"
#include "rows.h"

namespace merovane::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAreArray;

struct HandsetCommands : CommandFixture {
  void ForEachRow(const std::function<void(const Row&)>& body) {
    InBothByteOrders([&] {
      for (const Row& row : Rows(handset.Message())) {
        SCOPED_TRACE(testing::Message() << row.logName << " " << int{row.request.type} << "/"
                                        << int{row.request.subtype});
        settings.errors.BeginOperation(kOperationBefore);
        body(row);
      }
    });
  }

  Exchange& Expect(const Row& row) {
    return handset.Expect(row.request.type, row.request.subtype, row.request.payload);
  }

  void ExpectLog(const Row& row, Result result, bool logged) {
    std::vector<std::string> lines;
    const bool silent = std::strlen(row.logName) == 0;
    if (!silent) lines.emplace_back(row.logName);
    lines.emplace_back("Clear Port Buffer");
    if (logged && !silent) lines.push_back(ResultLine(result));
    EXPECT_THAT(LogText(), ElementsAreArray(lines));
  }
};

TEST_F(HandsetCommands, AskDeliverAndLog) {
  ForEachRow([&](const Row& row) {
    Expect(row).Answer(row.request.type, row.answer.subtype, row.answer.payload);
    const Outcome outcome = row.run(phone);
    EXPECT_EQ(outcome.result, Result::Success);
    EXPECT_EQ(outcome.delivered, row.delivered);
    EXPECT_EQ(OperationOf(outcome.result), row.operation);
    ExpectLog(row, outcome.result, true);
  });
}

TEST_F(HandsetCommands, WaitAsLongAsTheirLimitAndTheSettingSay) {
  settings.receiveIncrementMs = 30;
  ForEachRow([&](const Row& row) {
    Expect(row).Silent();
    const std::uint32_t before = clock.NowMs();
    const Outcome outcome = row.run(phone);
    EXPECT_EQ(clock.NowMs() - before, row.timeoutMs + 30);
    EXPECT_EQ(outcome.result, row.silence);
    ExpectLog(row, outcome.result, row.silence == Result::NoAnswer);
  });
}

TEST_F(HandsetCommands, PassTheLinksCodesOn) {
  ForEachRow([&](const Row& row) {
    const bool own = row.silence != Result::NoAnswer;
    Expect(row).WriteFails();
    EXPECT_EQ(row.run(phone).result, own ? row.silence : Result::WriteFailed);
    if (row.answer.subtype == 2) return;  // a refusal is the answer
    Expect(row).Answer(row.request.type, 2, "00 00 00 00");
    EXPECT_EQ(row.run(phone).result, own ? row.silence : Result::Refused);
  });
}

// Leaves bytes on the stack that no answer holds, where the next call's buffers will stand.
[[gnu::noinline]] void SoilStack() {
  std::array<volatile std::uint8_t, 60'000> soil;
  for (auto& byte : soil) byte = 0xEE;
}

TEST_F(HandsetCommands, TakeNothingFromBehindAnAnswer) {
  settings.usefulLog = false;
  ForEachRow([&](const Row& row) {
    for (std::size_t length = 0; length < row.answer.payload.size(); ++length) {
      SCOPED_TRACE(length);
      const Bytes cut(row.answer.payload.begin(),
                      row.answer.payload.begin() + static_cast<std::ptrdiff_t>(length));
      Expect(row).Answer(row.request.type, row.answer.subtype, cut);
      SoilStack();
      const Outcome outcome = row.run(phone);
      if (outcome.result != Result::Success) {
        EXPECT_THAT(row.shortResults, Contains(outcome.result));
      }
      EXPECT_EQ(outcome.delivered.find("EE"), std::string::npos) << outcome.delivered;
    }
  });
}

TEST_F(HandsetCommands, SwitchWithoutAwaitingAnAnswer) {
  using namespace commands;
  const struct {
    std::uint32_t operation;
    const char* logName;
    std::uint8_t subtype;
    Result (*turn)(Phone&, std::uint32_t);
    std::uint32_t on;
  } cases[] = {
      {19, "LedOn:", 3, LedOn, 1},
      {19, "LedOff:", 0, LedOn, 0},
      {20, "VibrationOn:", 4, VibrationOn, 5},
      {20, "VibrationOff:", 0, VibrationOn, 0},
      {44, "LcdOn:", 3, LcdOn, 1},
      {44, "LcdOff:", 8, LcdOn, 0},
      {45, "keyLightOn:", 16, keyLightOn, 1},
      {45, "keyLightOff:", 17, keyLightOn, 0},
      {46, "CameraOn:", 18, CameraOn, 1},
      {46, "CameraOff:", 19, CameraOn, 0},
  };
  const std::uint32_t before = clock.NowMs();
  for (const auto& each : cases) {
    handset.Expect(17, each.subtype);
    const Result result = each.turn(phone, each.on);
    EXPECT_EQ(result, Result::Success);
    EXPECT_EQ(OperationOf(result), each.operation);
    EXPECT_THAT(LogText(), ElementsAreArray({each.logName, "Clear Port Buffer",
                                             "Error Code = 0 (PC_ERR_SUCCESS)"}));
  }
  EXPECT_EQ(clock.NowMs(), before);
  handset.Expect(17, 3).WriteFails();
  EXPECT_EQ(LedOn(phone, 1), Result::WriteFailed);
}

}  // namespace
}  // namespace merovane::test
