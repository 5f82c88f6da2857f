// What all commands have in common: arguments that are refused, request, answer, log, operation,
// time limit, and answers that are cut short.
#include <cstring>

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
    const Outcome outcome = row.command.run(phone);
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
    const Outcome outcome = row.command.run(phone);
    EXPECT_EQ(clock.NowMs() - before, row.timeoutMs + 30);
    EXPECT_EQ(outcome.result, row.silence);
    ExpectLog(row, outcome.result, row.silence == Result::NoAnswer);
  });
}

TEST_F(HandsetCommands, PassTheLinksCodesOn) {
  ForEachRow([&](const Row& row) {
    const bool own = row.silence != Result::NoAnswer;
    const auto gives = [&](Result linksCode) {
      const Result result = own ? row.silence : linksCode;
      EXPECT_EQ(row.command.run(phone).result, result);
      ExpectLog(row, result, !own);
    };
    Expect(row).WriteFails();
    gives(Result::WriteFailed);
    if (row.answer.subtype == 2) return;  // a refusal is the answer
    Expect(row).Answer(row.request.type, 2, "00 00 00 00");
    gives(Result::Refused);
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
      const Outcome outcome = row.command.run(phone);
      if (outcome.result != Result::Success) {
        EXPECT_THAT(row.shortResults, Contains(outcome.result));
      }
      EXPECT_EQ(outcome.delivered.find("EE"), std::string::npos) << outcome.delivered;
    }
  });
}

TEST_F(HandsetCommands, RefuseNullPointersUnderTheirOperation) {
  ForEachRow([&](const Row& row) {
    if (!row.command.runWithNull) return;
    EXPECT_EQ(row.command.runWithNull(phone), Result::InvalidParam);
    EXPECT_EQ(OperationOf(Result::InvalidParam), row.operation);
  });
  EXPECT_THAT(Log(), ::testing::IsEmpty());
}

TEST_F(HandsetCommands, RefuseArgumentsUnderTheirOperation) {
  using namespace commands;
  std::uint8_t b[64] = {};
  std::uint16_t w[10] = {};
  std::uint32_t n = 77;
  const std::uint32_t radioTest[4] = {0, 79, 0, 0};
  QV_WIFI_FACTOR factor{};
  char text[4];
  // An address that cannot be written, and a capacity that runs over the end of memory.
  auto* const constant = const_cast<std::uint8_t*>(reinterpret_cast<const std::uint8_t*>("x"));
  const auto refused = [&](std::uint32_t operation, Result result,
                           Result expected = Result::InvalidParam) {
    EXPECT_EQ(result, expected) << operation;
    EXPECT_EQ(OperationOf(result), operation);
    settings.errors.BeginOperation(kOperationBefore);
  };
  std::uint32_t zero = 0;
  refused(5, RecvPhoneStartData(phone, nullptr, 8, &n, 10));
  refused(5, RecvPhoneStartData(phone, b, 0, &n, 10));
  refused(5, RecvPhoneStartData(phone, b, 8, nullptr, 10));
  refused(10, UsbChangeModeAndSetCampParam(phone, 1, 0x1F, 0x5A3, nullptr));
  refused(11, RestartPhone(phone, 0));
  refused(12, ReadMode(phone, b, 0));
  refused(12, ReadMode(phone, b, UINT32_MAX));
  refused(13, Read(phone, nullptr, &n, 10));
  refused(13, Read(phone, b, nullptr, 10));
  refused(13, Read(phone, b, &zero, 10));
  refused(13, Read(phone, b, &n, 0));
  refused(14, Write(phone, nullptr, 1));
  refused(14, Write(phone, b, 0));
  refused(14, Write(phone, b, -1));
  refused(23, ReadFlash(phone, 1, b, 0, &n, 10));
  refused(23, ReadFlash(phone, 1, b, -1, &n, 10));
  refused(23, ReadFlash(phone, 1, b, 65536, &n, 10));
  refused(23, ReadFlash(phone, 1, b, 4, nullptr, 10));
  refused(24, WriteFlash(phone, 1, b, 0, 10));
  // One byte more than a frame's length field can tell.
  refused(24, WriteFlash(phone, 1, b, 65524, 10));
  refused(221, WriteNv(phone, 1, b, 65526));
  refused(238, FastWriteProduct(phone, b, 65526));
  refused(25, EraseFlash(phone, 0));
  refused(220, ReadNv(phone, 1, b, 0, &n, 10));
  refused(220, ReadNv(phone, 1, b, UINT32_MAX, &n, 10));  // -1
  refused(220, ReadNv(phone, 1, b, 4, nullptr, 10));
  refused(47, ReadNvFromHandset(phone, 1, 0, 4, b, 0, &n));
  refused(47, ReadNvFromHandset(phone, 1, 0, 4, b, 4, nullptr));
  refused(29, ReadRegister(phone, 0, 0, b, 0));
  refused(29, ReadRegister(phone, 2, 0, b, 0x40000001));  // 4 bytes in 32 bits
  refused(30, WriteRegister(phone, 0, 0, b, 0));
  refused(30, WriteRegister(phone, 1, 0, b, 32756));
  refused(42, GetLcdIcDriverID(phone, 0, b, 0, &n));
  refused(42, GetLcdIcDriverID(phone, 0, b, -4, &n));
  refused(42, GetLcdIcDriverID(phone, 0, b, 4, nullptr));
  refused(22, GetMSVersion(phone, text, 0));
  refused(22, GetMSVersion(phone, text, UINT32_MAX));
  refused(218, Send7310KCommand(phone, 1, nullptr, w, 10));
  refused(236, Recv7310KCommand(phone, 1, nullptr, 10));
  refused(238, NvWriteDirect(phone, nullptr));
  refused(238, FastWriteNvInfo(phone, nullptr));
  refused(238, FastReadNvInfo(phone, nullptr));
  refused(26, ReadSN(phone, nullptr, 24));
  refused(26, ReadSN2(phone, b, 0));
  refused(26, ReadSN(phone, b, UINT32_MAX));
  refused(27, WriteSN(phone, nullptr, 4));
  refused(27, WriteSN(phone, b, 0));
  refused(27, WriteSN2(phone, b, 24));
  refused(28, ReadGuid(phone, nullptr));
  refused(238, FastReadProduct(phone, b, 0, &n));
  refused(238, FastReadVerSion(phone, b, 4, nullptr));
  refused(238, FastReadProduct(phone, constant, 1, &n));
  refused(238, FastReadVerSion(phone, b, UINT32_MAX, &n));
  refused(220, FastReaIMEICount(phone, nullptr));
  refused(17, ADCCalibration(phone, 1, b, 0));
  refused(34, StartBtRadioTest(phone, 1, radioTest));
  refused(35, StartBtAFC(phone, 1, 79));
  refused(36, SetBtDacValue(phone, 64));
  refused(37, SaveBtDacValue(phone, 64));
  refused(265, WIFI_SetDateRat(phone, 3));
  refused(265, WIFI_SetDateRat(phone, 257));  // 1 in 8 bits
  refused(266, WIFI_SetMode(phone, 7));
  refused(267, WIFI_SetPCL(phone, 0));
  refused(267, WIFI_SetPCL(phone, 6));
  refused(270, WIFI_ReadRxValue(phone, &n, nullptr));
  refused(271, WIFI_OperFactor(phone, 1, &factor), Result::WifiFailed);
  factor.index = 6;
  refused(271, WIFI_OperFactor(phone, 2, &factor), Result::WifiFailed);
  factor.index = 1;
  refused(271, WIFI_OperFactor(phone, 3, &factor), Result::WifiFailed);
  refused(kOperationBefore, DspDebug_RdRegMemo(phone, 0, 3, 0, b, 1));
  refused(kOperationBefore, DspDebug_RdRegMemo(phone, 0, 4, 0, b, 0));
  refused(kOperationBefore, DspDebug_WrRegMemo(phone, 0, 0, 0, 1));
  EXPECT_THAT(Log(), ::testing::IsEmpty());
  EXPECT_EQ(n, 77u);
}

TEST_F(HandsetCommands, SwitchWithoutAwaitingAnAnswer) {
  using namespace commands;
  const std::uint32_t before = clock.NowMs();
  const auto sends = [&](std::uint8_t type, std::uint8_t subtype, const char* logName,
                         Result (*command)(Phone&, std::uint32_t), std::uint32_t on) {
    handset.Expect(type, subtype);
    EXPECT_EQ(command(phone, on), Result::Success);
    EXPECT_THAT(LogText(), ElementsAreArray(
                               {logName, "Clear Port Buffer", "Error Code = 0 (PC_ERR_SUCCESS)"}));
    handset.Expect(type, subtype).WriteFails();
    EXPECT_EQ(command(phone, on), Result::WriteFailed);
    static_cast<void>(Log());
  };
  sends(17, 3, "LedOn:", LedOn, 1);
  sends(17, 0, "LedOff:", LedOn, 0);
  sends(17, 19, "CameraOff:", CameraOn, 0);
  EXPECT_EQ(OperationOf(Result::Success), 46u);
  sends(2, 4, "EnableArmLog:", EnableArmLog, 1);
  sends(2, 5, "DisableArmLog:", EnableArmLog, 0);
  EXPECT_EQ(OperationOf(Result::Success), 8u);
  sends(
      17, 2, "EnterDeepSleepMode:", [](Phone& p, std::uint32_t) { return EnterDeepSleepMode(p); },
      1);
  EXPECT_EQ(OperationOf(Result::Success), 21u);
  EXPECT_EQ(clock.NowMs(), before);
}

}  // namespace
}  // namespace merovane::test
