// The DSP's debug functions.
#include <array>

#include "commands/answer_fields.h"
#include "declared/short_range_radio.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kType = 50;
constexpr std::uint32_t kTimeoutMs = 4000;

Answer Ask(PhoneLink& link, std::uint8_t subtype, std::span<const std::uint8_t> payload) {
  return link.SendAndWaitSame({kType, subtype}, payload, kTimeoutMs);
}

// The exchange's result, unless the handset's own status says otherwise.
Result Verdict(const Answer& answer) {
  return TellsFailure(answer) ? Result::DspDebugFailed : answer.Why();
}

}  // namespace

Result body::DspDebug_ResetRFparam(Operation& operation) {
  return operation.Finish(Verdict(Ask(operation.link, 0, {})));
}

Result body::DspDebug_RdRegMemo(Operation& operation, std::uint32_t, std::uint32_t width,
                                std::uint32_t address, std::span<std::uint8_t> data,
                                std::uint16_t count) {
  const ByteOrder order = operation.link.Order();
  std::array<std::uint8_t, 12> request{};
  order.PutU32(request, 0, address);
  order.PutU32(request, 4, width);
  order.PutU16(request, 8, count);
  const Answer answer = Ask(operation.link, 1, request);
  const Result result = Verdict(answer);
  if (Succeeded(result)) CopyZeroFilled(answer.Payload(), kStatusBytes, data);
  return operation.Finish(result);
}

Result body::DspDebug_WrRegMemo(Operation& operation, std::uint32_t, std::uint32_t width,
                                std::uint32_t address, std::uint32_t value) {
  const ByteOrder order = operation.link.Order();
  std::array<std::uint8_t, 16> request{};
  order.PutU32(request, 0, address);
  order.PutU32(request, 4, width);
  order.PutU32(request, 8, value);
  return operation.Finish(Verdict(Ask(operation.link, 2, request)));
}

Result body::DspDebug_PlotFrame(Operation& operation, std::uint32_t a, std::uint8_t b,
                                std::uint8_t c, std::uint16_t d, std::uint16_t e) {
  const ByteOrder order = operation.link.Order();
  std::array<std::uint8_t, 12> request{};
  order.PutU16(request, 0, d);
  order.PutU16(request, 2, e);
  order.PutU32(request, 4, a);
  request[8] = b;
  request[9] = c;
  return operation.Finish(Verdict(Ask(operation.link, 3, request)));
}

}  // namespace merovane::commands
