// Arguments that are refused before anything is sent or logged.
#include <functional>

#include "commands/test/bluetooth.h"
#include "commands/test/dsp_debug.h"
#include "commands/test/fixed_nv.h"
#include "commands/test/flash_nv.h"
#include "commands/test/gps.h"
#include "commands/test/identification.h"
#include "commands/test/peripherals.h"
#include "commands/test/production_block.h"
#include "commands/test/registers.h"
#include "commands/test/serial_number.h"
#include "commands/test/wifi.h"
#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using namespace commands;
using HandsetArguments = CommandFixture;

TEST_F(HandsetArguments, AreRefusedUnderTheirOperationWithNothingSent) {
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
    settings.errors.BeginOperation(99);
  };
  refused(23, ReadFlash(phone, 1, nullptr, 4, &n, 10));
  refused(23, ReadFlash(phone, 1, b, 0, &n, 10));
  refused(23, ReadFlash(phone, 1, b, -1, &n, 10));
  refused(23, ReadFlash(phone, 1, b, 65536, &n, 10));
  refused(23, ReadFlash(phone, 1, b, 4, nullptr, 10));
  refused(24, WriteFlash(phone, 1, nullptr, 4, 10));
  refused(24, WriteFlash(phone, 1, b, 0, 10));
  refused(24, WriteFlash(phone, 1, b, 65536, 10));
  refused(25, EraseFlash(phone, 0));
  refused(220, ReadNv(phone, 1, nullptr, 4, &n, 10));
  refused(220, ReadNv(phone, 1, b, 0, &n, 10));
  refused(220, ReadNv(phone, 1, b, 4, nullptr, 10));
  refused(221, WriteNv(phone, 1, nullptr, 4));
  refused(47, ReadNvFromHandset(phone, 1, 0, 4, nullptr, 4, &n));
  refused(47, ReadNvFromHandset(phone, 1, 0, 4, b, 0, &n));
  refused(47, ReadNvFromHandset(phone, 1, 0, 4, b, 4, nullptr));
  refused(29, ReadRegister(phone, 0, 0, nullptr, 1));
  refused(29, ReadRegister(phone, 0, 0, b, 0));
  refused(29, ReadRegister(phone, 2, 0, b, 0x40000001));  // 4 bytes in 32 bits
  refused(30, WriteRegister(phone, 0, 0, nullptr, 1));
  refused(30, WriteRegister(phone, 0, 0, b, 0));
  refused(30, WriteRegister(phone, 1, 0, b, 32760));  // 65536 with its header
  refused(40, GetChipID(phone, nullptr));
  refused(41, GetChipType(phone, nullptr));
  refused(42, GetLcdIcDriverID(phone, 0, nullptr, 4, &n));
  refused(42, GetLcdIcDriverID(phone, 0, b, 0, &n));
  refused(42, GetLcdIcDriverID(phone, 0, b, -4, &n));
  refused(42, GetLcdIcDriverID(phone, 0, b, 4, nullptr));
  refused(43, GetFlashInfo(phone, nullptr));
  refused(22, GetMSVersion(phone, nullptr, 4));
  refused(22, GetMSVersion(phone, text, 0));
  refused(218, Send7310KCommand(phone, 1, nullptr, w, 10));
  refused(218, Send7310KCommand(phone, 1, w, nullptr, 10));
  refused(236, Recv7310KCommand(phone, 1, nullptr, 10));
  refused(238, NvWriteDirect(phone, nullptr));
  refused(238, FastWriteNvInfo(phone, nullptr));
  refused(238, FastReadNvInfo(phone, nullptr));
  refused(26, ReadSN(phone, nullptr, 24));
  refused(26, ReadSN2(phone, b, 0));
  refused(27, WriteSN(phone, nullptr, 4));
  refused(27, WriteSN(phone, b, 0));
  refused(27, WriteSN2(phone, b, 24));
  refused(28, ReadGuid(phone, nullptr));
  refused(238, FastWriteProduct(phone, nullptr, 4));
  refused(238, FastReadProduct(phone, nullptr, 4, &n));
  refused(238, FastReadProduct(phone, b, 0, &n));
  refused(238, FastReadVerSion(phone, b, 4, nullptr));
  refused(238, FastReadProduct(phone, constant, 1, &n));
  refused(238, FastReadVerSion(phone, b, UINT32_MAX, &n));
  refused(220, FastReaIMEICount(phone, nullptr));
  refused(17, ADCCalibration(phone, 1, nullptr, 10));
  refused(17, ADCCalibration(phone, 1, b, 0));
  refused(17, ReadAdcValue(phone, 1, nullptr, b, b, 10));
  refused(18, ReadPhoneVolt(phone, nullptr));
  refused(49, GpsWriteNv(phone, nullptr));
  refused(50, GpsReadNv(phone, nullptr));
  refused(32, SaveBTAddr(phone, nullptr));
  refused(33, LoadBTAddr(phone, nullptr));
  refused(34, StartBtRadioTest(phone, 1, nullptr));
  refused(34, StartBtRadioTest(phone, 1, radioTest));
  refused(35, StartBtAFC(phone, 1, 79));
  refused(36, SetBtDacValue(phone, 64));
  refused(37, SaveBtDacValue(phone, 64));
  refused(38, LoadBtDacValue(phone, nullptr));
  refused(262, WIFI_SaveAddr(phone, nullptr));
  refused(263, WIFI_LoadAddr(phone, nullptr));
  refused(265, WIFI_SetDateRat(phone, 3));
  refused(265, WIFI_SetDateRat(phone, 257));  // 1 in 8 bits
  refused(266, WIFI_SetMode(phone, 7));
  refused(267, WIFI_SetPCL(phone, 0));
  refused(267, WIFI_SetPCL(phone, 6));
  refused(270, WIFI_ReadRxValue(phone, nullptr, &n));
  refused(270, WIFI_ReadRxValue(phone, &n, nullptr));
  refused(271, WIFI_OperFactor(phone, 0, nullptr));
  refused(271, WIFI_OperFactor(phone, 1, &factor), Result::WifiFailed);
  factor.index = 6;
  refused(271, WIFI_OperFactor(phone, 2, &factor), Result::WifiFailed);
  factor.index = 1;
  refused(271, WIFI_OperFactor(phone, 3, &factor), Result::WifiFailed);
  refused(272, WIFI_SetCrystalCap(phone, nullptr));
  refused(99, DspDebug_RdRegMemo(phone, 0, 3, 0, b, 1));
  refused(99, DspDebug_RdRegMemo(phone, 0, 4, 0, nullptr, 1));
  refused(99, DspDebug_RdRegMemo(phone, 0, 4, 0, b, 0));
  refused(99, DspDebug_WrRegMemo(phone, 0, 0, 0, 1));
  EXPECT_THAT(Log(), ::testing::IsEmpty());
  EXPECT_EQ(n, 77u);
}

TEST_F(HandsetArguments, AllWifiRatesOfTheHandsetAreTaken) {
  for (const std::uint32_t rate :
       {1, 2, 5, 6, 7, 9, 11, 12, 13, 18, 19, 24, 26, 36, 39, 48, 52, 54, 58, 65}) {
    handset.Expect(54, 4, handset.Message().U32(rate)).Answer(54, 4, "00 00 00 00");
    EXPECT_EQ(WIFI_SetDateRat(phone, rate), Result::Success) << rate;
  }
}

}  // namespace
}  // namespace merovane::test
