// Transmit power: step factors, power amplifier, ramps.
#include <array>
#include <cstring>

#include "commands/calibration/calibration_message.h"
#include "declared/gsm_calibration.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kSetRamps = 0xA118;
constexpr std::uint16_t kSetAmplifier = 0xA11A;

}  // namespace

Result body::PwrStepFactorSet(Operation& operation, const QV_POWER_STEP& step) {
  const auto message =
      PowerMessage<28>(operation.link, kSetPowerStepFactor, step).U32(24, step.fourth);
  return operation.Finish(Acknowledged(operation.link, message));
}

Result body::PASetting(Operation& operation, const QV_POWER_STEP& setting) {
  // Handsets take the low half of the last field in their own byte order, the high half as it
  // stands in this machine's memory.
  std::array<std::uint8_t, sizeof(setting.fourth)> last{};
  std::memcpy(last.data(), &setting.fourth, last.size());
  const auto message = PowerMessage<28>(operation.link, kSetAmplifier, setting)
                           .Raw(24, last)
                           .U16(24, static_cast<std::uint16_t>(setting.fourth));
  return operation.Finish(Acknowledged(operation.link, message));
}

Result body::RampSetting(Operation& operation, bool flag, std::span<const std::uint16_t, 16> rampUp,
                         std::span<const std::uint16_t, 16> rampDown, std::uint32_t band) {
  const auto message = CalibrationMessage<88>(operation.link, kSetRamps)
                           .U32(16, band)
                           .U16(20, flag ? 1 : 0)
                           .U16s(22, rampUp)
                           .U16s(54, rampDown);
  return operation.Finish(Acknowledged(operation.link, message));
}

}  // namespace merovane::commands
