#include "commands/calibration/radio_steps.h"

#include <array>
#include <string_view>

#include "commands/calibration/data_command.h"
#include "declared/calibration_items.h"
#include "link/byte_order.h"

namespace merovane::commands::steps {
namespace {

constexpr std::uint16_t kTchItem = 19;
constexpr std::uint16_t kPclItem = 20;
constexpr std::uint16_t kRssiItem = 25;
constexpr std::uint16_t kRxLevelItem = 26;
constexpr std::uint16_t kActiveItem = 27;
constexpr std::uint16_t kTransmitterItem = 28;
constexpr std::uint16_t kReceiverItem = 29;
constexpr std::uint16_t kDirectCurrentItem = 41;

constexpr std::uint32_t kMeasurementTimeoutMs = 3000;
constexpr int kRssiReads = 6;
constexpr std::uint32_t kRssiPauseMs = 20;

using RadioRecord = std::array<std::uint8_t, 20>;

DataAddress InCurrentBand(const Phone& phone, std::uint16_t item) {
  return {Storage::Ram, phone.calibration.currentBand, item, 0};
}

// The last value is what the handset has acknowledged: a failed write is tried again.
Result Set(Phone& phone, std::string_view name, std::uint16_t item, std::uint16_t value,
           std::uint16_t& last) {
  phone.link.LogLine(name);
  const Result result = WriteWord(phone.link, InCurrentBand(phone, item), value);
  if (Succeeded(result)) last = value;
  return result;
}

Result SetWhenChanged(Phone& phone, std::string_view name, std::uint16_t item, std::uint16_t value,
                      std::uint16_t& last) {
  return value == last ? Result::Success : Set(phone, name, item, value, last);
}

// A record is made in the handset's byte order: its fields differ in width.
Result Write(Phone& phone, std::uint16_t item, const RadioRecord& record) {
  return WriteData(phone.link, InCurrentBand(phone, item), record, Element::Byte);
}

}  // namespace

Result SetTch(Phone& phone, std::uint16_t channel) {
  return SetWhenChanged(phone, "SetTch:", kTchItem, channel, phone.calibration.lastTch);
}

Result SetCdac(Phone& phone, std::uint16_t trim) {
  return SetWhenChanged(phone, "SetCDAC:", items::AFC_CDAC.item, trim, phone.calibration.lastCdac);
}

Result SetCafc(Phone& phone, std::uint16_t trim) {
  return SetWhenChanged(phone, "SetCAFC:", items::AFC_CAFC.item, trim, phone.calibration.lastCafc);
}

Result SetCafcCenter(Phone& phone, std::uint16_t center) {
  return SetWhenChanged(phone, "SetCAFC_CENTER:", items::AFC_afc_center.item, center,
                        phone.calibration.lastCafcCenter);
}

Result SetPcl(Phone& phone, std::uint16_t level) {
  return Set(phone, "SetPcl:", kPclItem, level, phone.calibration.lastPcl);
}

Result SwitchTransmitter(Phone& phone, bool on) {
  phone.link.LogLine(on ? "TxOn:" : "TxOff:");
  const TransmitParameters& parameters = phone.calibration.transmit;
  const ByteOrder order = phone.link.Order();
  RadioRecord record{};
  order.PutU32(record, 4, parameters.first);
  record[10] = on ? 1 : 0;
  order.PutU16(record, 12, parameters.second);
  order.PutU16(record, 14, parameters.third);
  order.PutU16(record, 16, parameters.fourth);
  const Result result = Write(phone, kTransmitterItem, record);
  if (Succeeded(result)) phone.calibration.transmitterOn = on;
  return result;
}

Result SwitchReceiver(Phone& phone, bool on, const ReceiveParameters& parameters,
                      ReceiveFor purpose) {
  phone.link.LogLine(on ? "RxOn:" : "RxOff:");
  const ByteOrder order = phone.link.Order();
  RadioRecord record{};
  order.PutU16(record, 0, parameters.first);
  order.PutU16(record, 2, parameters.second);
  order.PutU32(record, 4, 2);
  order.PutU16(record, 8, parameters.third);
  record[10] = on ? 1 : 0;
  record[18] = on && purpose == ReceiveFor::DirectCurrent ? 1 : 0;
  return Write(phone, kReceiverItem, record);
}

Result GetRssi(Phone& phone, std::uint16_t& rssi) {
  phone.link.LogLine("GetRssi:");
  Result result = Result::Success;
  std::uint16_t value = 0;
  for (int read = 0; read < kRssiReads && value == 0; ++read) {
    if (read > 0) phone.link.Sleep(kRssiPauseMs);
    result = ReadWord(phone.link, InCurrentBand(phone, kRssiItem), value, kMeasurementTimeoutMs);
  }
  if (!Succeeded(result)) return result;
  rssi = value;
  return value == 0 ? Result::InvalidRssi : Result::Success;
}

Result GetRxLevel(Phone& phone, std::uint16_t& level) {
  phone.link.LogLine("GetRxLevel:");
  return ReadWord(phone.link, InCurrentBand(phone, kRxLevelItem), level, kMeasurementTimeoutMs);
}

Result GetDirectCurrent(Phone& phone, std::uint16_t& first, std::uint16_t& second) {
  phone.link.LogLine("GetDirectCurr:");
  std::array<std::uint8_t, 4> data{};
  const Result result = ReadData(phone.link, {Storage::Ram, 0, kDirectCurrentItem, 0}, data,
                                 Element::Byte, kMeasurementTimeoutMs);
  if (!Succeeded(result)) return result;
  first = phone.link.Order().GetU16(data, 2);
  second = phone.link.Order().GetU16(data, 0);
  return Result::Success;
}

Result Activate(Phone& phone, bool on) {
  return WriteWord(phone.link, InCurrentBand(phone, kActiveItem), on ? 1 : 0);
}

}  // namespace merovane::commands::steps
