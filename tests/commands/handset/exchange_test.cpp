// Every command that asks a handset for one thing and awaits one answer, with arguments, both
// payloads on the wire, and what the caller gets; and what all commands have in common.
#include <cstring>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "commands/crc16.h"
#include "declared/identity.h"
#include "declared/memory.h"
#include "declared/peripherals.h"
#include "declared/phone_mode.h"
#include "declared/short_range_radio.h"
#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using namespace commands;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

// What a run gives: its code and, in hexadecimal, the caller's buffer, "A5" where untouched.
struct Outcome {
  Result result;
  std::string delivered;
};

struct Command {
  std::function<Outcome(Phone&)> run;
  // The same without its data; empty when it takes none.
  std::function<Result(Phone&)> runWithNull = {};
};

struct Row {
  const char* logName;
  std::uint32_t operation;
  std::uint32_t timeoutMs;
  struct {
    std::uint8_t type, subtype;
    Bytes payload;
  } request;
  struct {
    std::uint8_t subtype;
    Bytes payload;
  } answer;
  std::string delivered;
  Command command;
  // The codes that answers cut short may give, besides success.
  std::vector<Result> shortResults = {};
  // A failure that is not the link's own, and not logged.
  Result silence = Result::NoAnswer;
  // Stored when the exchange fails; otherwise nothing is.
  std::string failureStores = {};
};

constexpr std::uint32_t kOperationBefore = 99;
// Logs nothing of its own.
constexpr const char* kNoLog = "";

template <typename T>
T Nulled(T value) {
  if constexpr (std::is_pointer_v<T>) return nullptr;
  return value;
}

// The caller is told nothing but the code.
template <typename... Parameters, typename... Values>
Command Does(Result (*command)(Phone&, Parameters...), Values... values) {
  Command does{[=](Phone& phone) {
    return Outcome{command(phone, static_cast<Parameters>(values)...), ""};
  }};
  if constexpr ((std::is_pointer_v<Values> || ...)) {
    does.runWithNull = [=](Phone& phone) {
      return command(phone, Nulled(static_cast<Parameters>(values))...);
    };
  }
  return does;
}

template <typename T = std::uint8_t, typename Function>
Command Gets(std::size_t count, Function command) {
  return {[count, command](Phone& phone) {
            GuardedBuffer<T> out(count);
            const Result result = command(phone, out.Data());
            return Outcome{result, out.Hex(count)};
          },
          [command](Phone& phone) { return command(phone, static_cast<T*>(nullptr)); }};
}

Command Writes(std::uint32_t operation, QV_WIFI_FACTOR factor) {
  return {[=](Phone& phone) mutable {
    return Outcome{WIFI_OperFactor(phone, operation, &factor), ""};
  }};
}

Bytes Counting(std::size_t count) {
  Bytes bytes(count);
  for (std::size_t at = 0; at < count; ++at) bytes[at] = static_cast<std::uint8_t>(at + 1);
  return bytes;
}

const Bytes kData = Counting(8);
const Bytes kGpsBlock = Fields(false).Raw(Counting(24)).U32(0x41424344).Raw(Counting(16)).Get();
const std::uint16_t kWords[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0x1234};
const std::uint32_t kRadioTest[] = {9, 78, 8, 7};
std::uint32_t length = 0;

// In the byte order of `message`.
std::vector<Row> Rows(const Fields& message) {
  const auto u16 = [&](auto... values) {
    Fields f = message;
    (f.U16(values), ...);
    return f;
  };
  const auto u32 = [&](auto... values) {
    Fields f = message;
    (f.U32(values), ...);
    return f.Get();
  };
  const Bytes word = u32(0x01020304), ok = u32(0);
  const std::string gotWord = "04 03 02 01";
  const auto gps = [](const Bytes& head, const Bytes& data) {
    Bytes block = Joined(head, data);
    block.resize(264);
    return block;
  };
  Fields settings = message;
  settings.Raw(Counting(24)).U32(0x41424344).Raw(Counting(16));
  const Bytes words = u16(1, 2, 3, 4, 5, 6, 7, 8, 9, 0x1234).Get();
  const Bytes regions = Joined(u32(1, 2, 1, 3, 4, 5), Bytes(360, 9));
  const Bytes gotRegions =
      Fields(false).U32(1).U32(2).U32(1).U32(3).U32(4).U32(5).Raw(Bytes(360, 9)).Get();
  const Bytes production = Joined(kData, u16(Crc16Arc(kData)).Get());
  const auto header = [&](unsigned operation, unsigned bytes, unsigned width, unsigned count) {
    return u16(operation, bytes).U32(width).U32(0x10203040).U32(count);
  };
  // clang-format off
  return {
      // Modes.
      {"EnableDspLog:", 237, 1000, {2, 6, {}}, {6, {}}, "", Does(EnableDspLog, 7)},
      {"DisableDspLog:", 237, 1000, {2, 7, {}}, {7, {}}, "", Does(EnableDspLog, 0)},
      {"ChangePhoneMode:", 9, 4000, {12, 10, {}}, {10, {}}, "", Does(ChangePhoneMode, 10)},
      {"UsbChangePhoneMode:", 10, 4000, {12, 3, {}}, {3, Bytes(2)}, "01 00 00 00",
       Gets<std::uint32_t>(1, [](Phone& p, auto* out) { return UsbChangePhoneMode(p, 3, out); })},
      {"RestartPhone:", 11, 100, {12, 0, {}}, {0, {}}, "", Does(RestartPhone, 100)},
      // Byte 3 becomes a start mode code.
      {"ReadMode:", 12, 1000, {28, 0, {}}, {0, Hex("01 02 03 25 05")}, "01 02 03 85 05",
       Gets(5, [](Phone& p, auto* out) { return ReadMode(p, out, 5); })},
      // Items and registers.
      {"ReadFlash:", 23, 100, {13, 2, u16(5, 4).Get()}, {0, u16(5, 4).Raw("01 02 03 04").Get()}, "01 02 03 04",
       Gets(4, [](Phone& p, auto* out) { return ReadFlash(p, 5, out, 4, &length, 100); }), {Result::WrongDataLength}},
      {"WriteFlash:", 24, 4000, {13, 3, u16(0x0102, 8).Raw(kData).Get()}, {0, {}}, "",
       Does(WriteFlash, 0x0102, kData.data(), 8, 0)},
      {"WriteFlash:", 24, 90, {13, 3, u16(1, 8).Raw(kData).Get()}, {0, {}}, "", Does(WriteFlash, 1, kData.data(), 8, 90)},
      {"EraseFlash:", 25, 250, {13, 4, {}}, {0, {}}, "", Does(EraseFlash, 250)},
      {"ReadNv:", 220, 70, {13, 0, u16(7).Get()}, {0, u16(7).Raw("01 02 03").Get()}, "01 02 03",
       Gets(3, [](Phone& p, auto* out) { return ReadNv(p, 7, out, 3, &length, 70); }), {Result::BufferTooSmall}},
      {"WriteNv:", 221, 1000, {13, 1, u16(7).Raw(kData).Get()}, {0, {}}, "", Does(WriteNv, 7, kData.data(), 8)},
      {kNoLog, 47, 2000, {13, 0, u16(7).Get()}, {0, u16(7).Raw("01 02 03 04 05").Get()}, "03 04 05",
       Gets(3, [](Phone& p, auto* out) { return ReadNvFromHandset(p, 7, 2, 3, out, 3, &length); }),
       {Result::InvalidParam}},
      {"ReadRegister:", 29, 1000, {11, 0, header(0xA003, 16, 1, 3).Get()}, {0, Joined(Bytes(16), Counting(6))},
       "01 02 03 04 05 06", Gets(6, [](Phone& p, auto* out) { return ReadRegister(p, 1, 0x10203040, out, 3); })},
      {"WriteRegister:", 30, 1000, {11, 0, header(0xA004, 24, 7, 2).Raw(kData).Get()}, {0, {}}, "",
       Does(WriteRegister, 7, 0x10203040, kData.data(), 2)},
      // Identification.
      {"GetChipID:", 40, 1000, {93, 0, {}}, {0, word}, gotWord, Gets<std::uint32_t>(1, GetChipID)},
      {"GetChipType:", 41, 1000, {93, 1, {}}, {1, word}, gotWord, Gets<std::uint32_t>(1, GetChipType)},
      {"GetLcdIcDriverID:", 42, 1000, {93, 2, {}}, {2, Hex("01 02")}, "01 02",
       Gets(2, [](Phone& p, auto* out) { return GetLcdIcDriverID(p, 0, out, 2, &length); })},
      {"GetLcdIcDriverID:", 42, 1000, {93, 3, {}}, {3, Hex("01 02")}, "01 02",
       Gets(2, [](Phone& p, auto* out) { return GetLcdIcDriverID(p, 9, out, 2, &length); })},
      {"GetFlashInfo:", 43, 1000, {93, 4, {}}, {4, regions}, ToHex(gotRegions), Gets<QV_FLASH_INFO>(1, GetFlashInfo)},
      {"GetMSVersion:", 22, 1000, {0, 0, {}}, {0, Hex("56 31 00")}, "56 31 00",
       Gets<char>(3, [](Phone& p, char* out) { return GetMSVersion(p, out, 3); })},
      {"Send7310KCommand ID:200", 218, 1000, {37, 200, words}, {200, words},
       ToHex(std::span(reinterpret_cast<const std::uint8_t*>(kWords), sizeof kWords)),
       Gets<std::uint16_t>(10, [](Phone& p, auto* out) { return Send7310KCommand(p, 200, kWords, out, 0); })},
      {"Send7310KCommand ID:0", 218, 20, {37, 0, words}, {0, words},
       ToHex(std::span(reinterpret_cast<const std::uint8_t*>(kWords), sizeof kWords)),
       Gets<std::uint16_t>(10, [](Phone& p, auto* out) { return Send7310KCommand(p, 0, kWords, out, 20); })},
      // Blocks.
      {"Check NV:", 220, 1000, {94, 0xC0, Bytes(2)}, {1, {}}, "", Does(CheckFixedNV, 10)},
      {"Check NV:", 220, 1000, {13, 7, Bytes(2)}, {0, {}}, "", Does(CheckFixedNV, 0)},
      {"Fast Write Production Info:", 238, 3000, {95, 1, production}, {1, {}}, "",
       Does(FastWriteProduct, kData.data(), 8)},
      {"Read Product Info", 238, 3000, {95, 0x81, Bytes(2)}, {1, production}, ToHex(kData),
       Gets(8, [](Phone& p, auto* out) { return FastReadProduct(p, out, 8, &length); }),
       {Result::WrongDataLength, Result::ChecksumMismatch}},
      {"Read Product Info", 238, 3000, {96, 0x81, Bytes(2)}, {1, production}, ToHex(kData),
       Gets(8, [](Phone& p, auto* out) { return FastReadVerSion(p, out, 8, &length); }),
       {Result::WrongDataLength, Result::ChecksumMismatch}},
      // Measurements and keys.
      {"ADCCalibration:", 17, 60, {15, 3, {}}, {0, u16(0x0102).Get()}, "01 02",
       Gets(2, [](Phone& p, auto* out) { return ADCCalibration(p, 3, out, 60); })},
      {"ReadAdcValue:", 17, 1000, {15, 255, {}}, {0, u16(0x0102).Raw("03 04").Get()}, "02 01 03 04",
       Gets(4, [](Phone& p, auto* out) {
         return ReadAdcValue(p, 255, reinterpret_cast<std::uint16_t*>(out), out ? out + 2 : out, out ? out + 3 : out, 0);
       })},
      {"ReadAdcValue:", 17, 80, {15, 0, {}}, {0, u16(0x0102).Raw("03 04").Get()}, "02 01",
       Gets<std::uint16_t>(1, [](Phone& p, auto* out) { return ReadAdcValue(p, 0, out, nullptr, nullptr, 80); })},
      {"ReadPhoneVolt:", 18, 1000, {30, 0, {}}, {0, word}, gotWord, Gets<std::uint32_t>(1, ReadPhoneVolt),
       {}, Result::NoAnswer, "00 00 00 00"},
      {"PressKeyboard:", 39, 1000, {1, 0, u16(0xA001, 8).U32(0x01020304).Get()}, {0, {}}, "",
       Does(PressKeyboard, 0x01020304)},
      // GPS.
      {"GpsOpen:", 48, 1000, {35, 0, gps(u32(0), {})}, {0, gps(u32(0), {})}, "", Does(GpsOpen, 5)},
      {"GpsClose:", 48, 1000, {35, 0, gps(u32(3), {})}, {0, gps(u32(3), {})}, "", Does(GpsOpen, 0)},
      {"GpsWriteNv:", 49, 1000, {35, 0, gps(u32(4, 44), settings.Get())}, {0, gps(u32(4, 44), {})}, "",
       Does(GpsWriteNv, kGpsBlock.data())},
      {"GpsReadNv:", 50, 1000, {35, 0, gps(u32(5, 44), {})}, {0, gps(u32(5, 44), settings.Get())}, ToHex(kGpsBlock),
       Gets(44, GpsReadNv)},
      // Bluetooth.
      {"EnterEUTMode:", 31, 3000, {33, 0, {}}, {0, {}}, "", Does(EnterEUTMode, 8)},
      {"LeaveEUTMode:", 31, 3000, {33, 1, {}}, {0, {}}, "", Does(EnterEUTMode, 0)},
      {"SaveBTAddr:", 32, 3000, {33, 2, Hex("06 05 04 03 02 01")}, {0, {}}, "", Does(SaveBTAddr, kData.data())},
      {"LoadBTAddr:", 33, 1000, {33, 3, {}}, {0, Hex("06 05 04 03 02 01 07")}, "01 02 03 04 05 06",
       Gets(6, LoadBTAddr), {Result::BluetoothFailed}, Result::BluetoothFailed},
      {"StartBtRadioTest:", 34, 3000, {33, 4, u32(9, 78, 8, 7)}, {0, {}}, "", Does(StartBtRadioTest, 2, kRadioTest)},
      {"StopBtRadioTest:", 34, 1000, {33, 5, {}}, {0, {}}, "", Does(StartBtRadioTest, 0, nullptr)},
      {"StartBtAFC:", 35, 3000, {33, 6, u32(78)}, {0, {}}, "", Does(StartBtAFC, 1, 78)},
      {"StopBtAFC:", 35, 1000, {33, 8, {}}, {0, {}}, "", Does(StartBtAFC, 0, 79)},
      {"SetBtDacValue:", 36, 1000, {33, 7, u32(63)}, {0, {}}, "", Does(SetBtDacValue, 63)},
      {"SaveBtDacValue:", 37, 3000, {33, 9, u32(0)}, {0, {}}, "", Does(SaveBtDacValue, 0)},
      {"LoadBtDacValue:", 38, 1000, {33, 10, {}}, {0, word}, gotWord, Gets<std::uint32_t>(1, LoadBtDacValue),
       {Result::BluetoothFailed}, Result::BluetoothFailed},
      // WiFi.
      {"EnterWifiEUTMode:", 261, 3000, {54, 0, u32(1)}, {0, ok}, "", Does(WIFI_EnterEUTMode, 9)},
      {"LeaveWifiEUTMode:", 261, 3000, {54, 0, u32(0)}, {0, ok}, "", Does(WIFI_EnterEUTMode, 0)},
      {"SaveWifiAddr:", 262, 3000, {54, 1, Hex("06 05 04 03 02 01")}, {1, ok}, "", Does(WIFI_SaveAddr, kData.data())},
      {"LoadWifiAddr:", 263, 1000, {54, 2, {}}, {2, Hex("00 00 00 00 06 05 04 03 02 01")}, "06 05 04 03 02 01",
       Gets(6, WIFI_LoadAddr), {Result::WifiFailed}},
      {"SetWifiChannel:", 264, 3000, {54, 3, u32(13)}, {3, ok}, "", Does(WIFI_SetChannel, 13)},
      {"SetWifiChannel:", 264, 3000, {54, 3, u32(6)}, {3, ok}, "", Does(WIFI_SetChannel, 14)},
      {"SetWifiChannel:", 264, 3000, {54, 3, u32(6)}, {3, ok}, "", Does(WIFI_SetChannel, 0)},
      {"SetWifiDataRate:", 265, 3000, {54, 4, u32(54)}, {4, ok}, "", Does(WIFI_SetDateRat, 54)},
      {"EnableWifiTx:", 268, 3000, {54, 7, Hex("00 00 00 01 00 00 01 02")}, {7, ok}, "",
       Does(WIFI_SetTxStatus, 3, 0x0102)},
      {"DisableWifiTx:", 268, 3000, {54, 7, Bytes(8)}, {7, ok}, "", Does(WIFI_SetTxStatus, 0, 0)},
      {"DisableWifiRx:", 269, 1000, {54, 8, u32(0)}, {8, ok}, "", Does(WIFI_SetRxStatus, 0)},
      {"EnableWifiRx:", 269, 1000, {54, 8, u32(1)}, {8, ok}, "", Does(WIFI_SetRxStatus, 1)},
      {"ClearWifiRxValue:", 269, 1000, {54, 8, u32(2)}, {8, ok}, "", Does(WIFI_SetRxStatus, 77)},
      {"ReadRecPackage:", 270, 1000, {54, 9, {}}, {9, u32(0, 1, 2)}, "01 00 00 00 02 00 00 00",
       Gets<std::uint32_t>(2, [](Phone& p, auto* out) { return WIFI_ReadRxValue(p, out, out ? out + 1 : out); }),
       {}, Result::NoAnswer, "00 00 00 00 00 00 00 00"},
      {"ReadWifiFactor:", 271, 1000, {54, 10, {}}, {10, u32(0, 4, 1)}, "00 00 00 00 04 00 00 00 01 00 00 00",
       Gets<QV_WIFI_FACTOR>(1, [](Phone& p, auto* factor) { return WIFI_OperFactor(p, 0, factor); })},
      {"WriteWifiFactor:", 271, 8000, {54, 11, Hex("00 00 00 00 00 00 00 05 01 02 03 04")}, {11, ok}, "",
       Writes(1, {7, 5, 0x01020304})},
      {"SetWifiFactor:", 271, 8000, {54, 12, Hex("00 00 00 00 00 00 00 01 00 00 00 00")}, {12, ok}, "",
       Writes(2, {7, 1, 0})},
      {"SetCrystalCap:", 272, 3000, {54, 13, Hex("01 02")}, {13, ok}, "", Does(WIFI_SetCrystalCap, kData.data())},
      // DSP.
      {"DspDebug Reset RF param:", kOperationBefore, 4000, {50, 0, {}}, {0, ok}, "", Does(DspDebug_ResetRFparam)},
      {"DspDebug Read Register:", kOperationBefore, 4000, {50, 1, Joined(u32(0x01020304, 2), u16(3, 0).Get())},
       {1, Joined(ok, Counting(6))}, "01 02 03 04 05 06",
       Gets(6, [](Phone& p, auto* out) { return DspDebug_RdRegMemo(p, 1, 2, 0x01020304, out, 3); })},
      {"Dsp Debug Write Register:", kOperationBefore, 4000, {50, 2, u32(0x01020304, 4, 0x05060708, 0)}, {2, ok}, "",
       Does(DspDebug_WrRegMemo, 1, 4, 0x01020304, 0x05060708)},
      {"Dsp Debug Plot Frame:", kOperationBefore, 4000,
       {50, 3, u16(0x0506, 0x0708).U32(0x01020304).Raw("0A 0B 00 00").Get()}, {3, ok}, "",
       Does(DspDebug_PlotFrame, 0x01020304, 10, 11, 0x0506, 0x0708)},
  };
  // clang-format on
}

struct HandsetCommands : CommandFixture {
  void ForEachRow(const std::function<void(const Row&)>& body) {
    InBothByteOrders([&] {
      for (const Row& row : Rows(handset.Message())) {
        SCOPED_TRACE(testing::Message() << row.logName << " " << int{row.request.type} << "/"
                                        << int{row.request.subtype});
        environment.errors.BeginOperation(kOperationBefore);
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
    const std::string untouched = ToHex(Bytes((outcome.delivered.size() + 1) / 3, 0xA5));
    EXPECT_EQ(outcome.delivered, row.failureStores.empty() ? untouched : row.failureStores);
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

TEST_F(HandsetCommands, FailUnloggedWithAWifiStatusAndLoggedWithOneOfTheDsp) {
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

TEST_F(HandsetCommands, TakeNothingThatStandsAfterAnAnswer) {
  settings.usefulLog = false;
  ForEachRow([&](const Row& row) {
    for (std::size_t bytes = 0; bytes < row.answer.payload.size(); ++bytes) {
      SCOPED_TRACE(bytes);
      const Bytes cut(row.answer.payload.begin(),
                      row.answer.payload.begin() + static_cast<std::ptrdiff_t>(bytes));
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
    environment.errors.BeginOperation(kOperationBefore);
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
  refused(15, SendAtCommand(phone, nullptr, 0, 1, text, 4, &n, 10));
  refused(15, SendAtCommand(phone, "AT", 2, 1, nullptr, 4, &n, 10));
  refused(15, SendAtCommand(phone, "AT", 2, 1, text, 0, &n, 10));
  refused(15, SendAtCommand(phone, "AT", 2, 1, text, 4, nullptr, 10));
  refused(15, SendAtCommand(phone, "AT", 2, 1, text, 4, &n, 0));
  refused(15, SendAtCommand(phone, std::string(9215, 'A').c_str(), 2, 0, text, 4, &n, 10));
  refused(219, SendAT(phone, nullptr, 2, text, 4, &n, 10));
  refused(219, SendAT(phone, "AT", 0, text, 4, &n, 10));
  refused(219, SendAT(phone, "AT", 9217, text, 4, &n, 10));
  refused(219, SendAT(phone, "AT", 2, text, 0, &n, 10));
  refused(219, SendAT(phone, "AT", 2, text, 4, &n, 0));
  refused(16, GetCurrCellInfo(phone, nullptr));
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
  const auto sleep = [](Phone& p, std::uint32_t) { return EnterDeepSleepMode(p); };
  const struct {
    const char* logName;
    std::uint32_t operation;
    std::uint8_t type, subtype;
    Result (*command)(Phone&, std::uint32_t);
    std::uint32_t on;
  } rows[] = {{"EnableArmLog:", 8, 2, 4, EnableArmLog, 7},
              {"DisableArmLog:", 8, 2, 5, EnableArmLog, 0},
              {"LedOn:", 19, 17, 3, LedOn, 1},
              {"LedOff:", 19, 17, 0, LedOn, 0},
              {"VibrationOn:", 20, 17, 4, VibrationOn, 2},
              {"VibrationOff:", 20, 17, 0, VibrationOn, 0},
              {"EnterDeepSleepMode:", 21, 17, 2, sleep, 0},
              {"LcdOn:", 44, 17, 3, LcdOn, 1},
              {"LcdOff:", 44, 17, 8, LcdOn, 0},
              {"keyLightOn:", 45, 17, 16, keyLightOn, 1},
              {"keyLightOff:", 45, 17, 17, keyLightOn, 0},
              {"CameraOn:", 46, 17, 18, CameraOn, 1},
              {"CameraOff:", 46, 17, 19, CameraOn, 0}};
  const std::uint32_t before = clock.NowMs();
  for (const auto& row : rows) {
    for (const Result result : {Result::Success, Result::WriteFailed}) {
      Exchange& sent = handset.Expect(row.type, row.subtype);
      if (!Succeeded(result)) sent.WriteFails();
      EXPECT_EQ(row.command(phone, row.on), result) << row.logName;
      EXPECT_EQ(OperationOf(result), row.operation);
      EXPECT_THAT(LogText(), ElementsAre(row.logName, "Clear Port Buffer", ResultLine(result)));
    }
  }
  EXPECT_EQ(clock.NowMs(), before);
}

}  // namespace
}  // namespace merovane::test
