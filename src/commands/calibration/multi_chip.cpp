#include "commands/calibration/multi_chip.h"

#include <array>
#include <cstdio>

#include "commands/argument_checks.h"
#include "commands/calibration/agc_log.h"
#include "commands/calibration/data_command.h"
#include "commands/calibration/radio_steps.h"
#include "commands/operation.h"
#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr std::uint32_t kSettleBeforeRssiMs = 200;
constexpr std::uint32_t kSettleBeforeDirectCurrentMs = 100;
constexpr std::uint16_t kDirectCurrentChannel = 61;
constexpr steps::ReceiveParameters kDirectCurrentReceive{.first = 0, .second = 260};

constexpr std::uint16_t kNonSignalItem = 40;
constexpr std::uint32_t kAnsweredCommandId = 6;

}  // namespace

Result SetPhoneClassmark_MChip(Phone& phone, std::uint32_t band) {
  Operation operation(phone, 67);
  if (!IsBand(band)) return Result::InvalidParam;
  phone.calibration.currentBand = static_cast<std::uint16_t>(band);
  return operation.Finish(Result::Success);
}

Result SetPhoneAfcMode(Phone& phone, std::uint32_t mode) {
  phone.calibration.afcMode = mode;
  return Operation(phone).Finish(Result::Success);
}

Result SetTxParam(Phone& phone, std::uint32_t first, std::uint16_t second, std::uint16_t third,
                  std::uint16_t fourth) {
  phone.calibration.transmit = {first, second, third, fourth};
  return Operation(phone).Finish(Result::Success);
}

Result Active_MChip(Phone& phone, std::uint32_t on) {
  Operation operation(phone, 69);
  operation.Log(on ? "Active_MChip:" : "DeActive_MChip:");
  return operation.Finish(steps::Activate(phone, on != 0));
}

Result TxOn_MChip(Phone& phone, std::uint32_t on, std::uint16_t channel, std::uint16_t level) {
  Operation operation(phone);
  operation.Log(on ? "TxOn_MChip:" : "TxOff_MChip");
  Result result = Result::Success;
  if (on) {
    result = steps::SetTch(phone, channel);
    if (Succeeded(result)) result = steps::SetPcl(phone, level);
  }
  if (Succeeded(result)) result = steps::SwitchTransmitter(phone, on != 0);
  return operation.Finish(result);
}

// The record's values are taken in the order in which single-chip handsets get them.
Result AfcStart_MChip(Phone& phone, std::uint32_t start, const QV_AFC_PARAMETERS* parameters) {
  Operation operation(phone, 66);
  if (start && !parameters) return Result::InvalidParam;
  operation.Log(start ? "AfcStart_MChip:" : "AfcStop_MChip:");
  Result result = Result::Success;
  if (start) {
    const auto& values = parameters->values;
    result = steps::SetTch(phone, values[1]);
    if (Succeeded(result)) result = steps::SetPcl(phone, values[2]);
    if (phone.calibration.afcMode == 0) {
      if (Succeeded(result)) result = steps::SetCafcCenter(phone, values[0]);
    } else {
      if (Succeeded(result)) result = steps::SetCdac(phone, values[0]);
      if (Succeeded(result)) result = steps::SetCafc(phone, values[3]);
    }
  }
  if (Succeeded(result)) result = steps::SwitchTransmitter(phone, start != 0);
  return operation.Finish(result);
}

Result AgcStart_MChip(Phone& phone, std::uint32_t start, const QV_AGC_PARAMETERS* parameters,
                      QV_AGC_RESULT* measured) {
  Operation operation(phone, 65);
  if (!parameters || (start && !measured)) return Result::InvalidParam;
  operation.Log(start ? "AgcStart_MChip:" : "AgcStop_MChip:");
  const auto& words = parameters->words;
  const steps::ReceiveParameters receive{.first = words[1], .second = words[2]};
  if (!start) return operation.Finish(steps::SwitchReceiver(phone, false, receive));

  Result result = steps::SetTch(phone, words[0]);
  if (Succeeded(result)) result = steps::SetPcl(phone, words[3]);
  if (Succeeded(result)) result = steps::SwitchReceiver(phone, true, receive);
  if (!Succeeded(result)) return operation.Finish(result);
  phone.link.Clock().SleepMs(kSettleBeforeRssiMs);
  result = steps::GetRssi(phone, measured->rssi);
  if (Succeeded(result)) result = steps::GetRxLevel(phone, measured->rx_level);
  if (Succeeded(result)) LogMeasurement(operation, *measured);
  return operation.Finish(result);
}

Result CalDirectCurr(Phone& phone, std::uint16_t* first, std::uint16_t* second) {
  Operation operation(phone, 258);
  if (!first || !second) return Result::InvalidParam;
  operation.Log("GetDirectCurr:");
  phone.calibration.currentBand = 0;
  Result result = steps::SetTch(phone, kDirectCurrentChannel);
  if (Succeeded(result)) {
    result =
        steps::SwitchReceiver(phone, true, kDirectCurrentReceive, steps::ReceiveFor::DirectCurrent);
  }
  if (Succeeded(result)) {
    phone.link.Clock().SleepMs(kSettleBeforeDirectCurrentMs);
    result = steps::GetDirectCurrent(phone, *first, *second);
  }
  // The receiver is switched off whatever happened, and that alone cannot fail the measurement.
  static_cast<void>(steps::SwitchReceiver(phone, false, kDirectCurrentReceive));
  return operation.Finish(result);
}

Result SendNonSignalCmd(Phone& phone, const QV_NON_SIGNAL_COMMAND* command,
                        QV_NON_SIGNAL_ANSWER* output, std::uint32_t timeoutMs) {
  Operation operation(phone, 259);
  const bool wantsValues = command && command->command_id == kAnsweredCommandId;
  if (!command || (wantsValues && !output)) return Result::InvalidParam;
  std::array<char, 48> name;
  std::snprintf(name.data(), name.size(),
                "SendNonSignalCmd(ID = %d):", static_cast<int>(command->command_id));
  operation.Log(name.data());

  std::array<std::uint8_t, 14> data{};
  for (std::size_t at = 0; at < 4; ++at) PutU16(data, 2 * at, command->words[at]);
  PutU16(data, 8, static_cast<std::uint16_t>(command->first));
  PutU16(data, 10, static_cast<std::uint16_t>(command->command_id));
  PutU16(data, 12, static_cast<std::uint16_t>(command->second));
  const Answer answer = AskWritingData(phone.link, {Storage::Ram, 0, kNonSignalItem, 0}, data,
                                       Element::Byte, timeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  const auto payload = answer.Payload();
  if (payload.size() < sizeof(QV_NON_SIGNAL_ANSWER)) {
    return operation.Finish(Result::NonSignalFailed);
  }
  const std::uint16_t status = GetU16(payload, 0);
  if (wantsValues) {
    *output = {status, {GetU16(payload, 2), GetU16(payload, 4), GetU16(payload, 6)}};
  }
  return operation.Finish(status == 0 ? Result::Success : Result::NonSignalFailed);
}

}  // namespace merovane::commands
