// TD-SCDMA calibration parameters: a selector and as many values as it names.
#include <array>
#include <cstddef>
#include <type_traits>
#include <vector>

#include "commands/calibration/td.h"
#include "commands/operation.h"
#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr FrameId kReadParameters{36, 0};
constexpr FrameId kWriteParameters{36, 1};
constexpr std::uint32_t kTransferTimeoutMs = 1000;
constexpr std::size_t kTransferHeaderBytes = 6;
constexpr std::size_t kTransferredOffset = 4;
constexpr std::size_t kMaxValues = std::extent_v<decltype(QV_TD_PARAMETERS::values)>;

static_assert(offsetof(QV_TD_PARAMETERS, values) == 6 && kMaxValues == 3073);

}  // namespace

Result ReadTDCalParam(Phone& phone, QV_TD_PARAMETERS* parameters) {
  Operation operation(phone, 180);
  if (!parameters || parameters->count > kMaxValues) return Result::InvalidParam;
  operation.Log("ReadTDCalParam:");
  std::array<std::uint8_t, 8> request{};
  PutU32(request, 0, parameters->selector);
  PutU16(request, 4, parameters->count);
  const Answer answer = phone.link.SendAndWaitSame(kReadParameters, request, kTransferTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  const auto payload = answer.Payload();
  if (payload.size() < kTransferHeaderBytes + std::size_t{2} * parameters->count) {
    return operation.Finish(Result::ParseFailed);
  }
  if (GetU16(payload, kTransferredOffset) < parameters->count) {
    return operation.Finish(Result::WrongDataLength);
  }
  for (std::size_t at = 0; at < parameters->count; ++at) {
    parameters->values[at] = GetU16(payload, kTransferHeaderBytes + 2 * at);
  }
  return operation.Finish(Result::Success);
}

Result WriteTDCalParam(Phone& phone, const QV_TD_PARAMETERS* parameters) {
  Operation operation(phone, 181);
  if (!parameters || parameters->count == 0 || parameters->count > kMaxValues) {
    return Result::InvalidParam;
  }
  operation.Log("WriteTDCalParam:");
  std::vector<std::uint8_t> request(kTransferHeaderBytes + std::size_t{2} * parameters->count);
  PutU32(request, 0, parameters->selector);
  PutU16(request, 4, parameters->count);
  for (std::size_t at = 0; at < parameters->count; ++at) {
    PutU16(request, kTransferHeaderBytes + 2 * at, parameters->values[at]);
  }
  const Answer answer = phone.link.SendAndWaitSame(kWriteParameters, request, kTransferTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  const auto payload = answer.Payload();
  if (payload.size() < 8) return operation.Finish(Result::ParseFailed);
  return operation.Finish(GetU16(payload, kTransferredOffset) == parameters->count
                              ? Result::Success
                              : Result::WrongDataLength);
}

}  // namespace merovane::commands
