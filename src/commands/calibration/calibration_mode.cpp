// Changing between the calibration modes, activation, the band.
#include <string_view>

#include "commands/argument_checks.h"
#include "commands/calibration/calibration_message.h"
#include "commands/calibration/data_command.h"
#include "commands/calibration/gsm.h"
#include "commands/operation.h"

namespace merovane::commands {
namespace {

constexpr std::uint32_t kModeOperation = 31;
constexpr std::int32_t kGsmMode = 1;
constexpr std::int32_t kTdMode = 7;
// Items without data, whose writing asks for a mode.
constexpr std::uint16_t kInitGsmItem = 42;
constexpr std::uint16_t kChangeToTdItem = 43;

// Where the confirmation carries its status.
constexpr std::size_t kStatusOffset = 16;

// The handset acknowledges, then confirms with its status. The confirmation is awaited for the
// configured increment alone: without one the wait ends at once, in 11.
Result AskAndConfirm(Phone& phone, Operation& operation, std::uint16_t messageId,
                     std::uint32_t timeoutMs) {
  PhoneLink& link = phone.link;
  const CalibrationMessage<20> message(messageId);
  const Result asked = link.SendAndWaitSame(kCalibration, message.Payload(), timeoutMs);
  if (!Succeeded(asked)) return asked;

  operation.Log("Read _CNF:");
  const Answer confirmed = link.WaitForIncrement(kCalibration);
  // A confirmation that ends before its status counts as status 0.
  return confirmed.U32(kStatusOffset) != 0 ? Result::DspDebugFailed : confirmed.Why();
}

// The handset changes its software while it answers, so that what comes back says nothing.
Result AskWithoutConfirmation(Phone& phone, std::uint16_t item) {
  static_cast<void>(WriteData(phone.link, {Storage::Ram, 0, item, 0}, {}, Element::Byte));
  return Result::Success;
}

}  // namespace

Result ChangeGSMTDCalMode(Phone& phone, std::int32_t mode) {
  Operation operation(phone, kModeOperation);
  Result result = Result::Success;
  if (mode == kGsmMode) {
    operation.Log("Change to GSM CAL Mode:");
    result = AskAndConfirm(phone, operation, 0xA12D, 3000);
  } else if (mode == kTdMode) {
    operation.Log("Change to TD CAL Mode:");
    result = AskWithoutConfirmation(phone, kChangeToTdItem);
  }
  return operation.Finish(result);
}

Result InitGSMTDCalMode(Phone& phone, std::int32_t mode) {
  Operation operation(phone, kModeOperation);
  Result result = Result::Success;
  if (mode == kTdMode) {
    operation.Log("Init TD CAL Mode:");
    result = AskAndConfirm(phone, operation, 0xA12F, 1000);
  } else if (mode == kGsmMode) {
    operation.Log("Init GSM CAL Mode:");
    result = AskWithoutConfirmation(phone, kInitGsmItem);
  }
  return operation.Finish(result);
}

Result Active(Phone& phone, std::uint32_t on) {
  Operation operation(phone, 51);
  operation.Log(on ? "Active:" : "DeActive:");
  const CalibrationMessage<16> message(on ? 0xA101 : 0xA102);
  return operation.Finish(Acknowledged(phone.link, message));
}

Result SetPhoneClassmark(Phone& phone, std::uint32_t band) {
  Operation operation(phone, 52);
  if (!IsBand(band)) return Result::InvalidParam;
  operation.Log("SetPhoneClassmark:");
  const auto message = CalibrationMessage<20>(0xA103).U32(16, band);
  return operation.Finish(Acknowledged(phone.link, message));
}

}  // namespace merovane::commands
