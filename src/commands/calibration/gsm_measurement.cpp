// AFC and AGC loops: transmission at a trim value, measurement of what is received.
#include "commands/calibration/agc_log.h"
#include "commands/calibration/calibration_message.h"
#include "declared/gsm_calibration.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kStartAgc = 0xA111;
constexpr std::uint16_t kStopAgc = 0xA112;
constexpr std::uint16_t kStartAfc = 0xA114;
constexpr std::uint16_t kStopAfc = 0xA115;

// Handsets expect it after the parameters of a measurement.
constexpr std::uint16_t kAgcConstant = 18;

constexpr std::uint32_t kMeasuringMs = 200;
constexpr std::uint32_t kReportTimeoutMs = 1000;

// The report of a receive measurement, a frame of whatever type that follows the acknowledgement.
// Fields that it is too short for read 0.
Result ReceiveReport(PhoneLink& link, QV_AGC_RESULT& measured) {
  const Frame report = link.ReceiveFrame(kReportTimeoutMs);
  if (!report) return report.Why();
  measured = {report.U32(18), report.U16(22), report.U16(24)};
  return report.Payload().empty() ? Result::ParseFailed : Result::Success;
}

}  // namespace

Result body::AfcStart(Operation& operation, bool start, const QV_AFC_PARAMETERS* parameters) {
  if (!start) {
    const CalibrationMessage<16> message(operation.link, kStopAfc);
    return operation.Finish(Acknowledged(operation.link, message));
  }
  // The first value goes third.
  const auto& values = parameters->values;
  const auto message = CalibrationMessage<24>(operation.link, kStartAfc)
                           .U16(16, values[1])
                           .U16(18, values[2])
                           .U16(20, values[0])
                           .U16(22, values[3]);
  return operation.Finish(Acknowledged(operation.link, message));
}

Result body::AgcStart(Operation& operation, bool start, const QV_AGC_PARAMETERS* parameters,
                      QV_AGC_RESULT* measured) {
  if (!start) {
    const CalibrationMessage<16> message(operation.link, kStopAgc);
    return operation.Finish(Acknowledged(operation.link, message));
  }
  const auto message = CalibrationMessage<36>(operation.link, kStartAgc)
                           .U32(16, parameters->first)
                           .U16s(20, parameters->words)
                           .U32(28, parameters->last)
                           .U16(32, kAgcConstant);
  Result result = Acknowledged(operation.link, message);
  if (Succeeded(result)) {
    operation.link.Sleep(kMeasuringMs);
    result = ReceiveReport(operation.link, *measured);
  }
  if (Succeeded(result)) LogMeasurement(operation, *measured);
  return operation.Finish(result);
}

}  // namespace merovane::commands
