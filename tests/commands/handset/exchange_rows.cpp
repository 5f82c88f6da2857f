// The commands of one request that ask for anything but a calibration.
#include "commands/exchange_rows.h"

#include "commands/crc16.h"
#include "declared/identity.h"
#include "declared/memory.h"
#include "declared/peripherals.h"
#include "declared/phone_mode.h"
#include "declared/short_range_radio.h"

namespace merovane::test {

using namespace commands;

namespace {

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

}  // namespace

std::vector<Row> HandsetRows(const Fields& message) {
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
      {{"EnableDspLog:"}, 237, 1000, {2, 6, {}}, {6, {}}, "", Does(EnableDspLog, 7)},
      {{"DisableDspLog:"}, 237, 1000, {2, 7, {}}, {7, {}}, "", Does(EnableDspLog, 0)},
      {{"ChangePhoneMode:"}, 9, 4000, {12, 10, {}}, {10, {}}, "", Does(ChangePhoneMode, 10)},
      {{"UsbChangePhoneMode:"}, 10, 4000, {12, 3, {}}, {3, Bytes(2)}, "01 00 00 00",
       Gets<std::uint32_t>(1, [](Phone& p, auto* out) { return UsbChangePhoneMode(p, 3, out); })},
      {{"RestartPhone:"}, 11, 100, {12, 0, {}}, {0, {}}, "", Does(RestartPhone, 100)},
      // Byte 3 becomes a start mode code.
      {{"ReadMode:"}, 12, 1000, {28, 0, {}}, {0, Hex("01 02 03 25 05")}, "01 02 03 85 05",
       Gets(5, [](Phone& p, auto* out) { return ReadMode(p, out, 5); })},
      // Switches, which await nothing.
      {{"EnableArmLog:"}, 8, 0, {2, 4, {}}, {}, "", Does(EnableArmLog, 7)},
      {{"DisableArmLog:"}, 8, 0, {2, 5, {}}, {}, "", Does(EnableArmLog, 0)},
      {{"LedOn:"}, 19, 0, {17, 3, {}}, {}, "", Does(LedOn, 1)},
      {{"LedOff:"}, 19, 0, {17, 0, {}}, {}, "", Does(LedOn, 0)},
      {{"VibrationOn:"}, 20, 0, {17, 4, {}}, {}, "", Does(VibrationOn, 2)},
      {{"VibrationOff:"}, 20, 0, {17, 0, {}}, {}, "", Does(VibrationOn, 0)},
      {{"EnterDeepSleepMode:"}, 21, 0, {17, 2, {}}, {}, "", Does(EnterDeepSleepMode)},
      {{"LcdOn:"}, 44, 0, {17, 3, {}}, {}, "", Does(LcdOn, 1)},
      {{"LcdOff:"}, 44, 0, {17, 8, {}}, {}, "", Does(LcdOn, 0)},
      {{"keyLightOn:"}, 45, 0, {17, 16, {}}, {}, "", Does(keyLightOn, 1)},
      {{"keyLightOff:"}, 45, 0, {17, 17, {}}, {}, "", Does(keyLightOn, 0)},
      {{"CameraOn:"}, 46, 0, {17, 18, {}}, {}, "", Does(CameraOn, 1)},
      {{"CameraOff:"}, 46, 0, {17, 19, {}}, {}, "", Does(CameraOn, 0)},
      // Items and registers.
      {{"ReadFlash:"}, 23, 100, {13, 2, u16(5, 4).Get()}, {0, u16(5, 4).Raw("01 02 03 04").Get()}, "01 02 03 04",
       Gets(4, [](Phone& p, auto* out) { return ReadFlash(p, 5, out, 4, &length, 100); }), {Result::WrongDataLength}},
      {{"WriteFlash:"}, 24, 4000, {13, 3, u16(0x0102, 8).Raw(kData).Get()}, {0, {}}, "",
       Does(WriteFlash, 0x0102, kData.data(), 8, 0)},
      {{"WriteFlash:"}, 24, 90, {13, 3, u16(1, 8).Raw(kData).Get()}, {0, {}}, "", Does(WriteFlash, 1, kData.data(), 8, 90)},
      {{"EraseFlash:"}, 25, 250, {13, 4, {}}, {0, {}}, "", Does(EraseFlash, 250)},
      {{"ReadNv:"}, 220, 70, {13, 0, u16(7).Get()}, {0, u16(7).Raw("01 02 03").Get()}, "01 02 03",
       Gets(3, [](Phone& p, auto* out) { return ReadNv(p, 7, out, 3, &length, 70); }), {Result::BufferTooSmall}},
      {{"WriteNv:"}, 221, 1000, {13, 1, u16(7).Raw(kData).Get()}, {0, {}}, "", Does(WriteNv, 7, kData.data(), 8)},
      {{}, 47, 2000, {13, 0, u16(7).Get()}, {0, u16(7).Raw("01 02 03 04 05").Get()}, "03 04 05",
       Gets(3, [](Phone& p, auto* out) { return ReadNvFromHandset(p, 7, 2, 3, out, 3, &length); }),
       {Result::InvalidParam}},
      {{"ReadRegister:"}, 29, 1000, {11, 0, header(0xA003, 16, 1, 3).Get()}, {0, Joined(Bytes(16), Counting(6))},
       "01 02 03 04 05 06", Gets(6, [](Phone& p, auto* out) { return ReadRegister(p, 1, 0x10203040, out, 3); })},
      {{"WriteRegister:"}, 30, 1000, {11, 0, header(0xA004, 24, 7, 2).Raw(kData).Get()}, {0, {}}, "",
       Does(WriteRegister, 7, 0x10203040, kData.data(), 2)},
      // Identification.
      {{"GetChipID:"}, 40, 1000, {93, 0, {}}, {0, word}, gotWord, Gets<std::uint32_t>(1, GetChipID)},
      {{"GetChipType:"}, 41, 1000, {93, 1, {}}, {1, word}, gotWord, Gets<std::uint32_t>(1, GetChipType)},
      {{"GetLcdIcDriverID:"}, 42, 1000, {93, 2, {}}, {2, Hex("01 02")}, "01 02",
       Gets(2, [](Phone& p, auto* out) { return GetLcdIcDriverID(p, 0, out, 2, &length); })},
      {{"GetLcdIcDriverID:"}, 42, 1000, {93, 3, {}}, {3, Hex("01 02")}, "01 02",
       Gets(2, [](Phone& p, auto* out) { return GetLcdIcDriverID(p, 9, out, 2, &length); })},
      {{"GetFlashInfo:"}, 43, 1000, {93, 4, {}}, {4, regions}, ToHex(gotRegions), Gets<QV_FLASH_INFO>(1, GetFlashInfo)},
      {{"GetMSVersion:"}, 22, 1000, {0, 0, {}}, {0, Hex("56 31 00")}, "56 31 00",
       Gets<char>(3, [](Phone& p, char* out) { return GetMSVersion(p, out, 3); })},
      {{"Send7310KCommand ID:200"}, 218, 1000, {37, 200, words}, {200, words},
       ToHex(std::span(reinterpret_cast<const std::uint8_t*>(kWords), sizeof kWords)),
       Gets<std::uint16_t>(10, [](Phone& p, auto* out) { return Send7310KCommand(p, 200, kWords, out, 0); })},
      {{"Send7310KCommand ID:0"}, 218, 20, {37, 0, words}, {0, words},
       ToHex(std::span(reinterpret_cast<const std::uint8_t*>(kWords), sizeof kWords)),
       Gets<std::uint16_t>(10, [](Phone& p, auto* out) { return Send7310KCommand(p, 0, kWords, out, 20); })},
      // Blocks.
      {{"Check NV:"}, 220, 1000, {94, 0xC0, Bytes(2)}, {1, {}}, "", Does(CheckFixedNV, 10)},
      {{"Check NV:"}, 220, 1000, {13, 7, Bytes(2)}, {0, {}}, "", Does(CheckFixedNV, 0)},
      {{"Fast Write Production Info:"}, 238, 3000, {95, 1, production}, {1, {}}, "",
       Does(FastWriteProduct, kData.data(), 8)},
      {{"Read Product Info"}, 238, 3000, {95, 0x81, Bytes(2)}, {1, production}, ToHex(kData),
       Gets(8, [](Phone& p, auto* out) { return FastReadProduct(p, out, 8, &length); }),
       {Result::WrongDataLength, Result::ChecksumMismatch}},
      {{"Read Product Info"}, 238, 3000, {96, 0x81, Bytes(2)}, {1, production}, ToHex(kData),
       Gets(8, [](Phone& p, auto* out) { return FastReadVerSion(p, out, 8, &length); }),
       {Result::WrongDataLength, Result::ChecksumMismatch}},
      // Measurements and keys.
      {{"ADCCalibration:"}, 17, 60, {15, 3, {}}, {0, u16(0x0102).Get()}, "01 02",
       Gets(2, [](Phone& p, auto* out) { return ADCCalibration(p, 3, out, 60); })},
      {{"ReadAdcValue:"}, 17, 1000, {15, 255, {}}, {0, u16(0x0102).Raw("03 04").Get()}, "02 01 03 04",
       Gets(4, [](Phone& p, auto* out) {
         return ReadAdcValue(p, 255, reinterpret_cast<std::uint16_t*>(out), out ? out + 2 : out, out ? out + 3 : out, 0);
       })},
      {{"ReadAdcValue:"}, 17, 80, {15, 0, {}}, {0, u16(0x0102).Raw("03 04").Get()}, "02 01",
       Gets<std::uint16_t>(1, [](Phone& p, auto* out) { return ReadAdcValue(p, 0, out, nullptr, nullptr, 80); })},
      {{"ReadPhoneVolt:"}, 18, 1000, {30, 0, {}}, {0, word}, gotWord, Gets<std::uint32_t>(1, ReadPhoneVolt),
       {}, Result::NoAnswer, "00 00 00 00"},
      {{"PressKeyboard:"}, 39, 1000, {1, 0, u16(0xA001, 8).U32(0x01020304).Get()}, {0, {}}, "",
       Does(PressKeyboard, 0x01020304)},
      // GPS.
      {{"GpsOpen:"}, 48, 1000, {35, 0, gps(u32(0), {})}, {0, gps(u32(0), {})}, "", Does(GpsOpen, 5)},
      {{"GpsClose:"}, 48, 1000, {35, 0, gps(u32(3), {})}, {0, gps(u32(3), {})}, "", Does(GpsOpen, 0)},
      {{"GpsWriteNv:"}, 49, 1000, {35, 0, gps(u32(4, 44), settings.Get())}, {0, gps(u32(4, 44), {})}, "",
       Does(GpsWriteNv, kGpsBlock.data())},
      {{"GpsReadNv:"}, 50, 1000, {35, 0, gps(u32(5, 44), {})}, {0, gps(u32(5, 44), settings.Get())}, ToHex(kGpsBlock),
       Gets(44, GpsReadNv)},
      // Bluetooth.
      {{"EnterEUTMode:"}, 31, 3000, {33, 0, {}}, {0, {}}, "", Does(EnterEUTMode, 8)},
      {{"LeaveEUTMode:"}, 31, 3000, {33, 1, {}}, {0, {}}, "", Does(EnterEUTMode, 0)},
      {{"SaveBTAddr:"}, 32, 3000, {33, 2, Hex("06 05 04 03 02 01")}, {0, {}}, "", Does(SaveBTAddr, kData.data())},
      {{"LoadBTAddr:"}, 33, 1000, {33, 3, {}}, {0, Hex("06 05 04 03 02 01 07")}, "01 02 03 04 05 06",
       Gets(6, LoadBTAddr), {Result::BluetoothFailed}, Result::BluetoothFailed},
      {{"StartBtRadioTest:"}, 34, 3000, {33, 4, u32(9, 78, 8, 7)}, {0, {}}, "", Does(StartBtRadioTest, 2, kRadioTest)},
      {{"StopBtRadioTest:"}, 34, 1000, {33, 5, {}}, {0, {}}, "", Does(StartBtRadioTest, 0, nullptr)},
      {{"StartBtAFC:"}, 35, 3000, {33, 6, u32(78)}, {0, {}}, "", Does(StartBtAFC, 1, 78)},
      {{"StopBtAFC:"}, 35, 1000, {33, 8, {}}, {0, {}}, "", Does(StartBtAFC, 0, 79)},
      {{"SetBtDacValue:"}, 36, 1000, {33, 7, u32(63)}, {0, {}}, "", Does(SetBtDacValue, 63)},
      {{"SaveBtDacValue:"}, 37, 3000, {33, 9, u32(0)}, {0, {}}, "", Does(SaveBtDacValue, 0)},
      {{"LoadBtDacValue:"}, 38, 1000, {33, 10, {}}, {0, word}, gotWord, Gets<std::uint32_t>(1, LoadBtDacValue),
       {Result::BluetoothFailed}, Result::BluetoothFailed},
      // WiFi.
      {{"EnterWifiEUTMode:"}, 261, 3000, {54, 0, u32(1)}, {0, ok}, "", Does(WIFI_EnterEUTMode, 9)},
      {{"LeaveWifiEUTMode:"}, 261, 3000, {54, 0, u32(0)}, {0, ok}, "", Does(WIFI_EnterEUTMode, 0)},
      {{"SaveWifiAddr:"}, 262, 3000, {54, 1, Hex("06 05 04 03 02 01")}, {1, ok}, "", Does(WIFI_SaveAddr, kData.data())},
      {{"LoadWifiAddr:"}, 263, 1000, {54, 2, {}}, {2, Hex("00 00 00 00 06 05 04 03 02 01")}, "06 05 04 03 02 01",
       Gets(6, WIFI_LoadAddr), {Result::WifiFailed}},
      {{"SetWifiChannel:"}, 264, 3000, {54, 3, u32(13)}, {3, ok}, "", Does(WIFI_SetChannel, 13)},
      {{"SetWifiChannel:"}, 264, 3000, {54, 3, u32(6)}, {3, ok}, "", Does(WIFI_SetChannel, 14)},
      {{"SetWifiChannel:"}, 264, 3000, {54, 3, u32(6)}, {3, ok}, "", Does(WIFI_SetChannel, 0)},
      {{"SetWifiDataRate:"}, 265, 3000, {54, 4, u32(54)}, {4, ok}, "", Does(WIFI_SetDateRat, 54)},
      {{"EnableWifiTx:"}, 268, 3000, {54, 7, Hex("00 00 00 01 00 00 01 02")}, {7, ok}, "",
       Does(WIFI_SetTxStatus, 3, 0x0102)},
      {{"DisableWifiTx:"}, 268, 3000, {54, 7, Bytes(8)}, {7, ok}, "", Does(WIFI_SetTxStatus, 0, 0)},
      {{"DisableWifiRx:"}, 269, 1000, {54, 8, u32(0)}, {8, ok}, "", Does(WIFI_SetRxStatus, 0)},
      {{"EnableWifiRx:"}, 269, 1000, {54, 8, u32(1)}, {8, ok}, "", Does(WIFI_SetRxStatus, 1)},
      {{"ClearWifiRxValue:"}, 269, 1000, {54, 8, u32(2)}, {8, ok}, "", Does(WIFI_SetRxStatus, 77)},
      {{"ReadRecPackage:"}, 270, 1000, {54, 9, {}}, {9, u32(0, 1, 2)}, "01 00 00 00 02 00 00 00",
       Gets<std::uint32_t>(2, [](Phone& p, auto* out) { return WIFI_ReadRxValue(p, out, out ? out + 1 : out); }),
       {}, Result::NoAnswer, "00 00 00 00 00 00 00 00"},
      {{"ReadWifiFactor:"}, 271, 1000, {54, 10, {}}, {10, u32(0, 4, 1)}, "00 00 00 00 04 00 00 00 01 00 00 00",
       Gets<QV_WIFI_FACTOR>(1, [](Phone& p, auto* factor) { return WIFI_OperFactor(p, 0, factor); })},
      {{"WriteWifiFactor:"}, 271, 8000, {54, 11, Hex("00 00 00 00 00 00 00 05 01 02 03 04")}, {11, ok}, "",
       Writes(1, {7, 5, 0x01020304})},
      {{"SetWifiFactor:"}, 271, 8000, {54, 12, Hex("00 00 00 00 00 00 00 01 00 00 00 00")}, {12, ok}, "",
       Writes(2, {7, 1, 0})},
      {{"SetCrystalCap:"}, 272, 3000, {54, 13, Hex("01 02")}, {13, ok}, "", Does(WIFI_SetCrystalCap, kData.data())},
      // DSP.
      {{"DspDebug Reset RF param:"}, kOperationBefore, 4000, {50, 0, {}}, {0, ok}, "", Does(DspDebug_ResetRFparam)},
      {{"DspDebug Read Register:"}, kOperationBefore, 4000, {50, 1, Joined(u32(0x01020304, 2), u16(3, 0).Get())},
       {1, Joined(ok, Counting(6))}, "01 02 03 04 05 06",
       Gets(6, [](Phone& p, auto* out) { return DspDebug_RdRegMemo(p, 1, 2, 0x01020304, out, 3); })},
      {{"Dsp Debug Write Register:"}, kOperationBefore, 4000, {50, 2, u32(0x01020304, 4, 0x05060708, 0)}, {2, ok}, "",
       Does(DspDebug_WrRegMemo, 1, 4, 0x01020304, 0x05060708)},
      {{"Dsp Debug Plot Frame:"}, kOperationBefore, 4000,
       {50, 3, u16(0x0506, 0x0708).U32(0x01020304).Raw("0A 0B 00 00").Get()}, {3, ok}, "",
       Does(DspDebug_PlotFrame, 0x01020304, 10, 11, 0x0506, 0x0708)},
  };
  // clang-format on
}

}  // namespace merovane::test
