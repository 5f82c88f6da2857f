// AFC and AGC loops: transmission at a trim value, measurement of what is received.

#include "commands/calibration/agc_log.h"
#include "commands/calibration/calibration_message.h"
#include "commands/calibration/gsm.h"
#include "commands/operation.h"

namespace merovane::commands {
namespace {

constexpr std::uint32_t kMeasuringMs = 200;
constexpr std::uint32_t kReportTimeoutMs = 1000;

// The report of a receive measurement, a frame of whatever type that follows the acknowledgement.
// Fields that it is too short for read 0.
Result ReceiveReport(PhoneLink& link, QV_AGC_RESULT& measured) {
  AnswerBuffer frame{};
  std::uint32_t length = 0;
  const Result received = link.ReceiveFrame(frame, length, kReportTimeoutMs);
  if (!Succeeded(received)) return received;
  if (length <= kHeaderBytes) {
    measured = {};
    return Result::ParseFailed;
  }
  const auto payload = std::span<const std::uint8_t>(frame).subspan(kHeaderBytes);
  measured = {GetU32(payload, 18), GetU16(payload, 22), GetU16(payload, 24)};
  return Result::Success;
}

}  // namespace

Result AfcStart(Phone& phone, std::uint32_t start, const QV_AFC_PARAMETERS* parameters) {
  Operation operation(phone, 53);
  if (start && !parameters) return Result::InvalidParam;
  operation.Log(start ? "AfcStart:" : "AfcStop:");
  if (!start) {
    const CalibrationMessage<16> message(0xA115);
    return operation.Finish(Acknowledged(phone.link, message));
  }
  // The first value goes third.
  const auto& values = parameters->values;
  const auto message = CalibrationMessage<24>(0xA114)
                           .U16(16, values[1])
                           .U16(18, values[2])
                           .U16(20, values[0])
                           .U16(22, values[3]);
  return operation.Finish(Acknowledged(phone.link, message));
}

Result AgcStart(Phone& phone, std::uint32_t start, const QV_AGC_PARAMETERS* parameters,
                QV_AGC_RESULT* measured) {
  Operation operation(phone, 55);
  if (start && (!parameters || !measured)) return Result::InvalidParam;
  operation.Log(start ? "AgcStart:" : "AgcStop:");
  if (!start) {
    const CalibrationMessage<16> message(0xA112);
    return operation.Finish(Acknowledged(phone.link, message));
  }
  const auto message = CalibrationMessage<36>(0xA111)
                           .U32(16, parameters->first)
                           .U16s(20, parameters->words)
                           .U32(28, parameters->last)
                           .U16(32, 18);
  Result result = Acknowledged(phone.link, message);
  if (Succeeded(result)) {
    phone.link.Clock().SleepMs(kMeasuringMs);
    result = ReceiveReport(phone.link, *measured);
  }
  if (Succeeded(result)) LogMeasurement(operation, *measured);
  return operation.Finish(result);
}

}  // namespace merovane::commands
