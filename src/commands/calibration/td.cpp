#include "commands/calibration/td.h"

#include <algorithm>
#include <string_view>

#include "commands/calibration/calibration_message.h"
#include "commands/operation.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kMaxSweepPoints = 8;

constexpr FrameId kReadModeFrame{28, 1};
constexpr std::uint8_t kStartType = 0xFE;
constexpr std::uint8_t kStartedSubtype = 0x91;

template <std::size_t Bytes, typename Record>
Result SendTransmission(Phone& phone, std::uint32_t operationId, std::string_view name,
                        std::uint16_t id, const Record* record) {
  Operation operation(phone, operationId);
  if (!record) return Result::InvalidParam;
  operation.Log(name);
  const auto message =
      PowerMessage<Bytes>(id, *record).U32(24, record->fourth).U16s(28, record->words);
  return operation.Finish(Acknowledged(phone.link, message));
}

}  // namespace

Result TDTxSweep(Phone& phone, const QV_TD_TX_SWEEP* sweep) {
  Operation operation(phone, 260);
  if (!sweep || sweep->count > kMaxSweepPoints) return Result::InvalidParam;
  operation.Log("TDTxSweep:");
  auto message = PowerMessage<60>(0xA12A, *sweep).U16(24, sweep->count);
  for (std::size_t point = 0; point < sweep->count; ++point) {
    message.U16s(26 + 4 * point, sweep->points[point]);
  }
  return operation.Finish(Acknowledged(phone.link, message));
}

Result TdStartTx(Phone& phone, const QV_TD_TX_START* start) {
  return SendTransmission<40>(phone, 222, "TdStartTx:", 0xA129, start);
}

Result PwrStepFactorSweepSet_TD(Phone& phone, const QV_TD_POWER_SWEEP* sweep) {
  return SendTransmission<36>(phone, 171, "PwrStepFactorSweepSet_TD:", 0xA128, sweep);
}

Result PwrStepFactorSet_TD(Phone& phone, const QV_POWER_STEP* step) {
  Operation operation(phone, 173);
  if (!step) return Result::InvalidParam;
  operation.Log("PwrStepFactorSet_TD:");
  // The GSM command's id: a handset tells the two apart by the mode it is in.
  const auto message = PowerMessage<32>(0xA119, *step)
                           .U32(24, step->fourth)
                           .U16(28, phone.calibration.tdContinuousMode ? 1 : 0);
  return operation.Finish(Acknowledged(phone.link, message));
}

Result SetTDContTxRxMode(Phone& phone, std::uint32_t mode) {
  phone.calibration.tdContinuousMode = mode;
  return Operation(phone).Finish(Result::Success);
}

Result ReadMode_TD(Phone& phone, std::uint8_t* data, std::uint32_t capacity) {
  Operation operation(phone, 176);
  if (!data || !IsCapacity(capacity)) return Result::InvalidParam;
  operation.Log("ReadMode_TD:");
  const Answer answer = phone.link.SendAndWaitSame(kReadModeFrame, {}, 1000);
  const auto payload = answer.Payload();
  std::ranges::copy(payload.first(std::min<std::size_t>(payload.size(), capacity)), data);
  return operation.Finish(payload.size() > capacity ? Result::BufferTooSmall : answer.Why());
}

Result SetPhoneStartMode_TD(Phone& phone, std::uint32_t mode) {
  Operation operation(phone, 177);
  operation.Log("SetPhoneStartMode_TD:");
  Result result = phone.link.SendFrame({kStartType, static_cast<std::uint8_t>(mode + 128)});
  if (!Succeeded(result)) return operation.Finish(result);
  AnswerBuffer frame;
  std::uint32_t length = 0;
  result = phone.link.ReceiveFrame(frame, length, 3000);
  if (Succeeded(result) && (length < kHeaderBytes || IdOf(frame).subtype != kStartedSubtype)) {
    result = Result::EnterModeFailed;
  }
  return operation.Finish(result);
}

}  // namespace merovane::commands
