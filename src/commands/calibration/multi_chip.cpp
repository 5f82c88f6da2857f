// Calibrating multi-chip handsets: what single-chip ones do by messages is done here by radio
// steps.
#include <array>
#include <cstdio>

#include "commands/calibration/agc_log.h"
#include "commands/calibration/data_command.h"
#include "commands/calibration/radio_steps.h"
#include "declared/multi_chip_calibration.h"

namespace merovane::commands {
namespace {

constexpr std::uint32_t kSettleBeforeRssiMs = 200;
constexpr std::uint32_t kSettleBeforeDirectCurrentMs = 100;
constexpr std::uint16_t kDirectCurrentChannel = 61;
constexpr steps::ReceiveParameters kDirectCurrentReceive{.first = 0, .second = 260};

constexpr std::uint16_t kNonSignalItem = 40;
// The only command whose answer carries values.
constexpr std::uint32_t kAnsweredCommandId = 6;

}  // namespace

Result body::SetPhoneClassmark_MChip(Operation& operation, std::uint32_t band) {
  operation.phone.calibration.currentBand = static_cast<std::uint16_t>(band);
  return operation.Finish(Result::Success);
}

Result body::SetPhoneAfcMode(Operation& operation, bool mode) {
  operation.phone.calibration.trimsWithCdac = mode;
  return operation.Finish(Result::Success);
}

Result body::SetTxParam(Operation& operation, std::uint32_t first, std::uint16_t second,
                        std::uint16_t third, std::uint16_t fourth) {
  operation.phone.calibration.transmit = {first, second, third, fourth};
  return operation.Finish(Result::Success);
}

Result body::Active_MChip(Operation& operation, bool on) {
  return operation.Finish(steps::Activate(operation.phone, on));
}

Result body::TxOn_MChip(Operation& operation, bool on, std::uint16_t channel, std::uint16_t level) {
  Phone& phone = operation.phone;
  Result result = Result::Success;
  if (on) {
    result = steps::SetTch(phone, channel);
    if (Succeeded(result)) result = steps::SetPcl(phone, level);
  }
  if (Succeeded(result)) result = steps::SwitchTransmitter(phone, on);
  return operation.Finish(result);
}

// The record's values are taken in the order in which single-chip handsets get them.
Result body::AfcStart_MChip(Operation& operation, bool start, const QV_AFC_PARAMETERS* parameters) {
  Phone& phone = operation.phone;
  Result result = Result::Success;
  if (start) {
    const auto& values = parameters->values;
    result = steps::SetTch(phone, values[1]);
    if (Succeeded(result)) result = steps::SetPcl(phone, values[2]);
    if (!phone.calibration.trimsWithCdac) {
      if (Succeeded(result)) result = steps::SetCafcCenter(phone, values[0]);
    } else {
      if (Succeeded(result)) result = steps::SetCdac(phone, values[0]);
      if (Succeeded(result)) result = steps::SetCafc(phone, values[3]);
    }
  }
  if (Succeeded(result)) result = steps::SwitchTransmitter(phone, start);
  return operation.Finish(result);
}

Result body::AgcStart_MChip(Operation& operation, bool start, const QV_AGC_PARAMETERS& parameters,
                            QV_AGC_RESULT* measured) {
  Phone& phone = operation.phone;
  const auto& words = parameters.words;
  const steps::ReceiveParameters receive{.first = words[1], .second = words[2]};
  if (!start) return operation.Finish(steps::SwitchReceiver(phone, false, receive));

  Result result = steps::SetTch(phone, words[0]);
  if (Succeeded(result)) result = steps::SetPcl(phone, words[3]);
  if (Succeeded(result)) result = steps::SwitchReceiver(phone, true, receive);
  if (!Succeeded(result)) return operation.Finish(result);
  operation.link.Sleep(kSettleBeforeRssiMs);
  result = steps::GetRssi(phone, measured->rssi);
  if (Succeeded(result)) result = steps::GetRxLevel(phone, measured->rx_level);
  if (Succeeded(result)) LogMeasurement(operation, *measured);
  return operation.Finish(result);
}

Result body::CalDirectCurr(Operation& operation, std::uint16_t& first, std::uint16_t& second) {
  Phone& phone = operation.phone;
  phone.calibration.currentBand = QV_BAND_GSM;
  Result result = steps::SetTch(phone, kDirectCurrentChannel);
  if (Succeeded(result)) {
    result =
        steps::SwitchReceiver(phone, true, kDirectCurrentReceive, steps::ReceiveFor::DirectCurrent);
  }
  if (Succeeded(result)) {
    operation.link.Sleep(kSettleBeforeDirectCurrentMs);
    result = steps::GetDirectCurrent(phone, first, second);
  }
  // The receiver is switched off whatever happened, and that alone cannot fail the measurement.
  static_cast<void>(steps::SwitchReceiver(phone, false, kDirectCurrentReceive));
  return operation.Finish(result);
}

Result body::SendNonSignalCmd(Operation& operation, const QV_NON_SIGNAL_COMMAND& command,
                              QV_NON_SIGNAL_ANSWER* values, std::uint32_t timeoutMs) {
  std::array<char, 48> name;
  std::snprintf(name.data(), name.size(),
                "SendNonSignalCmd(ID = %d):", static_cast<int>(command.command_id));
  operation.Log(name.data());

  const ByteOrder order = operation.link.Order();
  std::array<std::uint8_t, 14> data{};
  for (std::size_t at = 0; at < 4; ++at) order.PutU16(data, 2 * at, command.words[at]);
  order.PutU16(data, 8, static_cast<std::uint16_t>(command.first));
  order.PutU16(data, 10, static_cast<std::uint16_t>(command.command_id));
  order.PutU16(data, 12, static_cast<std::uint16_t>(command.second));
  const Answer answer =
      AskWritingData(operation.link, {.item = kNonSignalItem}, data, Element::Byte, timeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  if (answer.Payload().size() < sizeof(QV_NON_SIGNAL_ANSWER)) {
    return operation.Finish(Result::NonSignalFailed);
  }
  const std::uint16_t status = answer.U16(0);
  if (command.command_id == kAnsweredCommandId) {
    *values = {status, {answer.U16(2), answer.U16(4), answer.U16(6)}};
  }
  return operation.Finish(status == 0 ? Result::Success : Result::NonSignalFailed);
}

}  // namespace merovane::commands
