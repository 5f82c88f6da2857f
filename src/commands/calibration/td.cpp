// Calibrating the TD-SCDMA radio of a handset in TD calibration mode.
#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "commands/calibration/calibration_message.h"
#include "declared/td_calibration.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kSetPowerSweep = 0xA128;
constexpr std::uint16_t kStartTransmission = 0xA129;
constexpr std::uint16_t kStartSweep = 0xA12A;

constexpr FrameId kReadMode{28, 1};
constexpr std::uint32_t kReadModeTimeoutMs = 1000;
constexpr std::uint8_t kStartType = 0xFE;
constexpr std::uint8_t kStartedSubtype = 0x91;
constexpr std::uint32_t kStartTimeoutMs = 3000;

static_assert(std::extent_v<decltype(QV_TD_TX_SWEEP::points)> == 8);

template <std::size_t Bytes, typename Record>
CalibrationMessage<Bytes> TransmissionMessage(const PhoneLink& link, std::uint16_t id,
                                              const Record& record) {
  return PowerMessage<Bytes>(link, id, record).U32(24, record.fourth).U16s(28, record.words);
}

}  // namespace

Result body::TDTxSweep(Operation& operation, const QV_TD_TX_SWEEP& sweep) {
  auto message = PowerMessage<60>(operation.link, kStartSweep, sweep).U16(24, sweep.count);
  for (std::size_t point = 0; point < sweep.count; ++point) {
    message.U16s(26 + 4 * point, sweep.points[point]);
  }
  return operation.Finish(Acknowledged(operation.link, message));
}

Result body::TdStartTx(Operation& operation, const QV_TD_TX_START& start) {
  const auto message = TransmissionMessage<40>(operation.link, kStartTransmission, start);
  return operation.Finish(Acknowledged(operation.link, message));
}

Result body::PwrStepFactorSweepSet_TD(Operation& operation, const QV_TD_POWER_SWEEP& sweep) {
  const auto message = TransmissionMessage<36>(operation.link, kSetPowerSweep, sweep);
  return operation.Finish(Acknowledged(operation.link, message));
}

Result body::PwrStepFactorSet_TD(Operation& operation, const QV_POWER_STEP& step) {
  const auto message = PowerMessage<32>(operation.link, kSetPowerStepFactor, step)
                           .U32(24, step.fourth)
                           .U16(28, operation.phone.calibration.tdContinuous ? 1 : 0);
  return operation.Finish(Acknowledged(operation.link, message));
}

Result body::SetTDContTxRxMode(Operation& operation, bool mode) {
  operation.phone.calibration.tdContinuous = mode;
  return operation.Finish(Result::Success);
}

Result body::ReadMode_TD(Operation& operation, std::span<std::uint8_t> data) {
  const Answer answer = operation.link.SendAndWaitSame(kReadMode, {}, kReadModeTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  const auto payload = answer.Payload();
  std::ranges::copy(payload.first(std::min(payload.size(), data.size())), data.begin());
  return operation.Finish(payload.size() > data.size() ? Result::BufferTooSmall : Result::Success);
}

Result body::SetPhoneStartMode_TD(Operation& operation, std::uint32_t mode) {
  const Result sent = operation.link.SendFrame({kStartType, static_cast<std::uint8_t>(mode + 128)});
  if (!Succeeded(sent)) return operation.Finish(sent);
  const Frame frame = operation.link.ReceiveFrame(kStartTimeoutMs);
  if (!frame) return operation.Finish(frame.Why());
  const bool started = frame.Id().subtype == kStartedSubtype;
  return operation.Finish(started ? Result::Success : Result::EnterModeFailed);
}

}  // namespace merovane::commands
