// Changing between the calibration modes, activation, the band.
#include "commands/calibration/calibration_message.h"
#include "commands/calibration/data_command.h"
#include "declared/gsm_calibration.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kActivate = 0xA101;
constexpr std::uint16_t kDeactivate = 0xA102;
constexpr std::uint16_t kSetBand = 0xA103;
constexpr std::uint16_t kChangeToGsm = 0xA12D;
constexpr std::uint16_t kInitTd = 0xA12F;
// Items without data, whose writing asks for a mode.
constexpr std::uint16_t kInitGsmItem = 42;
constexpr std::uint16_t kChangeToTdItem = 43;

constexpr std::uint32_t kChangeToGsmTimeoutMs = 3000;

// Where a confirmation carries its status.
constexpr std::size_t kStatusOffset = 16;

// The handset acknowledges, then confirms with its status. The confirmation is awaited for the
// configured increment alone: without one the wait ends at once.
Result AskAndConfirm(Operation& operation, std::uint16_t messageId, std::uint32_t timeoutMs) {
  const CalibrationMessage<20> message(operation.link, messageId);
  const Result asked = Acknowledged(operation.link, message, timeoutMs);
  if (!Succeeded(asked)) return asked;

  operation.Log("Read _CNF:");
  const Answer confirmed = operation.link.WaitForIncrement(kCalibration);
  if (!confirmed) return confirmed.Why();
  // A confirmation that ends before its status counts as status 0.
  return confirmed.U32(kStatusOffset) != 0 ? Result::DspDebugFailed : Result::Success;
}

// The handset changes its software while it answers, so that what comes back says nothing.
Result AskWithoutConfirmation(Operation& operation, std::uint16_t item) {
  static_cast<void>(WriteData(operation.link, {.item = item}, {}, Element::Byte));
  return Result::Success;
}

}  // namespace

Result body::ChangeGSMTDCalMode(Operation& operation, std::int32_t mode) {
  Result result = Result::Success;
  if (mode == QV_CALIBRATION_MODE_GSM) {
    operation.Log("Change to GSM CAL Mode:");
    result = AskAndConfirm(operation, kChangeToGsm, kChangeToGsmTimeoutMs);
  } else if (mode == QV_CALIBRATION_MODE_TD) {
    operation.Log("Change to TD CAL Mode:");
    result = AskWithoutConfirmation(operation, kChangeToTdItem);
  }
  return operation.Finish(result);
}

Result body::InitGSMTDCalMode(Operation& operation, std::int32_t mode) {
  Result result = Result::Success;
  if (mode == QV_CALIBRATION_MODE_TD) {
    operation.Log("Init TD CAL Mode:");
    result = AskAndConfirm(operation, kInitTd, kCalibrationTimeoutMs);
  } else if (mode == QV_CALIBRATION_MODE_GSM) {
    operation.Log("Init GSM CAL Mode:");
    result = AskWithoutConfirmation(operation, kInitGsmItem);
  }
  return operation.Finish(result);
}

Result body::Active(Operation& operation, bool on) {
  const CalibrationMessage<16> message(operation.link, on ? kActivate : kDeactivate);
  return operation.Finish(Acknowledged(operation.link, message));
}

Result body::SetPhoneClassmark(Operation& operation, std::uint32_t band) {
  const auto message = CalibrationMessage<20>(operation.link, kSetBand).U32(16, band);
  return operation.Finish(Acknowledged(operation.link, message));
}

}  // namespace merovane::commands
