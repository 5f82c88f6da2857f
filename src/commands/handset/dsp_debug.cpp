#include "commands/handset/dsp_debug.h"

#include <array>

#include "commands/answer_fields.h"
#include "commands/operation.h"
#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kType = 50;
constexpr std::uint32_t kTimeoutMs = 4000;

Answer Ask(Phone& phone, std::uint8_t subtype, std::span<const std::uint8_t> payload) {
  return phone.link.SendAndWaitSame({kType, subtype}, payload, kTimeoutMs);
}

// The exchange's result, unless the handset's own status says otherwise.
Result Verdict(const Answer& answer) {
  return TellsFailure(answer.Payload()) ? Result::DspDebugFailed : answer.Why();
}

bool KnownWidth(std::uint32_t width) { return width == 1 || width == 2 || width == 4; }

}  // namespace

Result DspDebug_ResetRFparam(Phone& phone) {
  Operation operation(phone);
  operation.Log("DspDebug Reset RF param:");
  return operation.Finish(Verdict(Ask(phone, 0, {})));
}

Result DspDebug_RdRegMemo(Phone& phone, std::uint32_t, std::uint32_t width, std::uint32_t address,
                          std::uint8_t* data, std::uint16_t count) {
  Operation operation(phone);
  if (!KnownWidth(width) || !data || count == 0) return Result::InvalidParam;
  operation.Log("DspDebug Read Register:");
  std::array<std::uint8_t, 12> request{};
  PutU32(request, 0, address);
  PutU32(request, 4, width);
  PutU16(request, 8, count);
  const Answer answer = Ask(phone, 1, request);
  const Result result = Verdict(answer);
  if (Succeeded(result)) {
    CopyZeroFilled(answer.Payload(), kStatusBytes, {data, std::size_t{count} * width});
  }
  return operation.Finish(result);
}

Result DspDebug_WrRegMemo(Phone& phone, std::uint32_t, std::uint32_t width, std::uint32_t address,
                          std::uint32_t value) {
  Operation operation(phone);
  if (!KnownWidth(width)) return Result::InvalidParam;
  operation.Log("Dsp Debug Write Register:");
  std::array<std::uint8_t, 16> request{};
  PutU32(request, 0, address);
  PutU32(request, 4, width);
  PutU32(request, 8, value);
  return operation.Finish(Verdict(Ask(phone, 2, request)));
}

Result DspDebug_PlotFrame(Phone& phone, std::uint32_t a, std::uint8_t b, std::uint8_t c,
                          std::uint16_t d, std::uint16_t e) {
  Operation operation(phone);
  operation.Log("Dsp Debug Plot Frame:");
  std::array<std::uint8_t, 12> request{};
  PutU16(request, 0, d);
  PutU16(request, 2, e);
  PutU32(request, 4, a);
  request[8] = b;
  request[9] = c;
  return operation.Finish(Verdict(Ask(phone, 3, request)));
}

}  // namespace merovane::commands
