// Transmit power: step factors, power amplifier, ramps, full power.
#include <array>
#include <cstring>
#include <string_view>

#include "commands/argument_checks.h"
#include "commands/calibration/calibration_message.h"
#include "commands/calibration/gsm.h"
#include "commands/operation.h"

namespace merovane::commands {
namespace {

constexpr std::size_t kRampPoints = 16;

constexpr FrameId kMaxTxPower{17, 6};
constexpr FrameId kMaxRxPower{17, 5};
// Leaves either.
constexpr FrameId kNormalPower{17, 0};

Result SwitchPower(Phone& phone, std::uint32_t operationId, std::string_view name, FrameId status) {
  Operation operation(phone, operationId);
  operation.Log(name);
  return operation.Finish(phone.link.SendFrame(status));
}

}  // namespace

Result PwrStepFactorSet(Phone& phone, const QV_POWER_STEP* step) {
  Operation operation(phone, 56);
  if (!step) return Result::InvalidParam;
  operation.Log("PwrStepFactorSet:");
  const auto message = PowerMessage<28>(0xA119, *step).U32(24, step->fourth);
  return operation.Finish(Acknowledged(phone.link, message));
}

Result PASetting(Phone& phone, const QV_POWER_STEP* setting) {
  Operation operation(phone, 64);
  if (!setting) return Result::InvalidParam;
  operation.Log("PASetting:");
  // Handsets take the low half of the last field in their own byte order, the high half as it
  // stands in this machine's memory.
  std::array<std::uint8_t, sizeof(setting->fourth)> last{};
  std::memcpy(last.data(), &setting->fourth, last.size());
  const auto message = PowerMessage<28>(0xA11A, *setting)
                           .Raw(24, last)
                           .U16(24, static_cast<std::uint16_t>(setting->fourth));
  return operation.Finish(Acknowledged(phone.link, message));
}

Result RampSetting(Phone& phone, std::uint32_t flag, const std::uint16_t* rampUp,
                   const std::uint16_t* rampDown, std::uint32_t band) {
  Operation operation(phone, 63);
  if (!rampUp || !rampDown || !IsBand(band)) return Result::InvalidParam;
  operation.Log("RampSetting:");
  const auto message = CalibrationMessage<88>(0xA118)
                           .U32(16, band)
                           .U16(20, flag ? 1 : 0)
                           .U16s(22, {rampUp, kRampPoints})
                           .U16s(54, {rampDown, kRampPoints});
  return operation.Finish(Acknowledged(phone.link, message));
}

Result EnterMaxTxPowerStatus(Phone& phone) {
  return SwitchPower(phone, 59, "EnterMaxTxPowerStatus:", kMaxTxPower);
}

Result LeaveMaxTxPowerStatus(Phone& phone) {
  return SwitchPower(phone, 60, "LeaveMaxTxPowerStatus:", kNormalPower);
}

Result EnterMaxRxPowerStatus(Phone& phone) {
  return SwitchPower(phone, 61, "EnterMaxRxPowerStatus:", kMaxRxPower);
}

Result LeaveMaxRxPowerStatus(Phone& phone) {
  return SwitchPower(phone, 62, "LeaveMaxRxPowerStatus:", kNormalPower);
}

}  // namespace merovane::commands
