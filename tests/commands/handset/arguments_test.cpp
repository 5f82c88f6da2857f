#include "declared/identity.h"
#include "declared/memory.h"
#include "declared/peripherals.h"
#include "declared/phone_mode.h"
#include "declared/short_range_radio.h"
#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using namespace commands;

using HandsetArguments = CommandFixture;

TEST_F(HandsetArguments, AreRefusedUnderTheirOperation) {
  std::uint8_t b[64] = {};
  std::uint16_t w[10] = {};
  std::uint32_t n = 77, zero = 0;
  const std::uint32_t radioTest[4] = {0, 79, 0, 0};
  QV_WIFI_FACTOR factor{};
  char text[4];
  // An address that cannot be written, and a capacity that runs over the end of memory.
  auto* const constant = const_cast<std::uint8_t*>(reinterpret_cast<const std::uint8_t*>("x"));
  const auto refused = [&](std::uint32_t operation, std::initializer_list<Result> results,
                           Result expected = Result::InvalidParam) {
    EXPECT_THAT(results, ::testing::Each(expected));
    EXPECT_EQ(OperationOf(expected), operation);
    environment.errors.BeginOperation(99);
  };
  refused(5,
          {RecvPhoneStartData(phone, nullptr, 8, &n, 10), RecvPhoneStartData(phone, b, 0, &n, 10),
           RecvPhoneStartData(phone, b, 8, nullptr, 10)});
  refused(10, {UsbChangeModeAndSetCampParam(phone, 1, 0x1F, 0x5A3, nullptr)});
  refused(11, {RestartPhone(phone, 0)});
  refused(12, {ReadMode(phone, b, 0), ReadMode(phone, b, UINT32_MAX)});
  refused(13, {Read(phone, nullptr, &n, 10), Read(phone, b, nullptr, 10), Read(phone, b, &zero, 10),
               Read(phone, b, &n, 0)});
  refused(14, {Write(phone, nullptr, 1), Write(phone, b, 0), Write(phone, b, -1)});
  refused(15, {SendAtCommand(phone, nullptr, 0, 1, text, 4, &n, 10),
               SendAtCommand(phone, "AT", 2, 1, nullptr, 4, &n, 10),
               SendAtCommand(phone, "AT", 2, 1, text, 0, &n, 10),
               SendAtCommand(phone, "AT", 2, 1, text, 4, nullptr, 10),
               SendAtCommand(phone, "AT", 2, 1, text, 4, &n, 0),
               SendAtCommand(phone, std::string(9215, 'A').c_str(), 2, 0, text, 4, &n, 10)});
  refused(219, {SendAT(phone, nullptr, 2, text, 4, &n, 10), SendAT(phone, "AT", 0, text, 4, &n, 10),
                SendAT(phone, "AT", 9217, text, 4, &n, 10), SendAT(phone, "AT", 2, text, 0, &n, 10),
                SendAT(phone, "AT", 2, text, 4, &n, 0)});
  refused(16, {GetCurrCellInfo(phone, nullptr)});
  refused(23, {ReadFlash(phone, 1, b, 0, &n, 10), ReadFlash(phone, 1, b, -1, &n, 10),
               ReadFlash(phone, 1, b, 65536, &n, 10), ReadFlash(phone, 1, b, 4, nullptr, 10)});
  // One byte more than a frame's length field can tell.
  refused(24, {WriteFlash(phone, 1, b, 0, 10), WriteFlash(phone, 1, b, 65524, 10)});
  refused(221, {WriteNv(phone, 1, b, 65526)});
  refused(238, {FastWriteProduct(phone, b, 65526)});
  refused(238, {NvWriteDirect(phone, nullptr)});
  refused(238, {FastWriteNvInfo(phone, nullptr)});
  refused(238, {FastReadNvInfo(phone, nullptr)});
  refused(238, {FastReadProduct(phone, b, 0, &n), FastReadProduct(phone, constant, 1, &n)});
  refused(238, {FastReadVerSion(phone, b, 4, nullptr), FastReadVerSion(phone, b, UINT32_MAX, &n)});
  refused(25, {EraseFlash(phone, 0)});
  refused(220, {ReadNv(phone, 1, b, 0, &n, 10), ReadNv(phone, 1, b, UINT32_MAX, &n, 10),
                ReadNv(phone, 1, b, 4, nullptr, 10)});
  refused(220, {FastReaIMEICount(phone, nullptr)});
  refused(47, {ReadNvFromHandset(phone, 1, 0, 4, b, 0, &n),
               ReadNvFromHandset(phone, 1, 0, 4, b, 4, nullptr)});
  // 4 bytes in 32 bits.
  refused(29, {ReadRegister(phone, 0, 0, b, 0), ReadRegister(phone, 2, 0, b, 0x40000001)});
  refused(30, {WriteRegister(phone, 0, 0, b, 0), WriteRegister(phone, 1, 0, b, 32756)});
  refused(42, {GetLcdIcDriverID(phone, 0, b, 0, &n), GetLcdIcDriverID(phone, 0, b, -4, &n),
               GetLcdIcDriverID(phone, 0, b, 4, nullptr)});
  refused(22, {GetMSVersion(phone, text, 0), GetMSVersion(phone, text, UINT32_MAX)});
  refused(218, {Send7310KCommand(phone, 1, nullptr, w, 10)});
  refused(236, {Recv7310KCommand(phone, 1, nullptr, 10)});
  refused(26, {ReadSN(phone, nullptr, 24), ReadSN(phone, b, UINT32_MAX)});
  refused(26, {ReadSN2(phone, b, 0)});
  refused(27, {WriteSN(phone, nullptr, 4), WriteSN(phone, b, 0)});
  refused(27, {WriteSN2(phone, b, 24)});
  refused(28, {ReadGuid(phone, nullptr)});
  refused(17, {ADCCalibration(phone, 1, b, 0)});
  refused(34, {StartBtRadioTest(phone, 1, radioTest)});
  refused(35, {StartBtAFC(phone, 1, 79)});
  refused(36, {SetBtDacValue(phone, 64)});
  refused(37, {SaveBtDacValue(phone, 64)});
  // 1 in 8 bits.
  refused(265, {WIFI_SetDateRat(phone, 3), WIFI_SetDateRat(phone, 257)});
  refused(266, {WIFI_SetMode(phone, 7)});
  refused(267, {WIFI_SetPCL(phone, 0), WIFI_SetPCL(phone, 6)});
  refused(270, {WIFI_ReadRxValue(phone, &n, nullptr)});
  refused(99, {DspDebug_RdRegMemo(phone, 0, 3, 0, b, 1), DspDebug_RdRegMemo(phone, 0, 4, 0, b, 0)});
  refused(99, {DspDebug_WrRegMemo(phone, 0, 0, 0, 1)});
  refused(271, {WIFI_OperFactor(phone, 1, &factor)}, Result::WifiFailed);
  factor.index = 6;
  refused(271, {WIFI_OperFactor(phone, 2, &factor)}, Result::WifiFailed);
  factor.index = 1;
  refused(271, {WIFI_OperFactor(phone, 3, &factor)}, Result::WifiFailed);
  EXPECT_THAT(Log(), ::testing::IsEmpty());
  EXPECT_EQ(n, 77u);
}

}  // namespace
}  // namespace merovane::test
