// TD-SCDMA calibration parameters: a selector and as many values as it names.
#include <array>
#include <cstddef>
#include <cstring>
#include <type_traits>
#include <vector>

#include "declared/td_calibration.h"

namespace merovane::commands {
namespace {

constexpr FrameId kReadParameters{36, 0};
constexpr FrameId kWriteParameters{36, 1};
constexpr std::uint32_t kTransferTimeoutMs = 1000;
constexpr std::size_t kTransferredOffset = 4;
constexpr std::size_t kValuesOffset = 6;
constexpr std::size_t kShortestWriteAnswer = 8;

static_assert(offsetof(QV_TD_PARAMETERS, values) == kValuesOffset &&
              std::extent_v<decltype(QV_TD_PARAMETERS::values)> == 3073);

std::size_t ValueBytes(const QV_TD_PARAMETERS& parameters) {
  return sizeof(parameters.values[0]) * parameters.count;
}

// What requests begin with.
void PutHeader(ByteOrder order, const QV_TD_PARAMETERS& parameters,
               std::span<std::uint8_t> request) {
  order.PutU32(request, 0, parameters.selector);
  order.PutU16(request, kTransferredOffset, parameters.count);
}

}  // namespace

Result body::ReadTDCalParam(Operation& operation, QV_TD_PARAMETERS& parameters) {
  const ByteOrder order = operation.link.Order();
  std::array<std::uint8_t, 8> request{};
  PutHeader(order, parameters, request);
  const Answer answer =
      operation.link.SendAndWaitSame(kReadParameters, request, kTransferTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  const std::size_t bytes = ValueBytes(parameters);
  if (answer.Payload().size() < kValuesOffset + bytes) return operation.Finish(Result::ParseFailed);
  if (answer.U16(kTransferredOffset) < parameters.count) {
    return operation.Finish(Result::WrongDataLength);
  }
  // The caller's memory may hold more values than the record declares.
  const std::span values(reinterpret_cast<std::uint8_t*>(&parameters) + kValuesOffset, bytes);
  if (bytes > 0) std::memcpy(values.data(), answer.Payload().data() + kValuesOffset, bytes);
  order.SwapArray16(values);
  return operation.Finish(Result::Success);
}

Result body::WriteTDCalParam(Operation& operation, const QV_TD_PARAMETERS& parameters) {
  const ByteOrder order = operation.link.Order();
  std::vector<std::uint8_t> request(kValuesOffset + ValueBytes(parameters));
  PutHeader(order, parameters, request);
  const auto values = std::span(request).subspan(kValuesOffset);
  std::memcpy(values.data(), parameters.values, values.size());
  order.SwapArray16(values);
  const Answer answer =
      operation.link.SendAndWaitSame(kWriteParameters, request, kTransferTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  if (answer.Payload().size() < kShortestWriteAnswer) return operation.Finish(Result::ParseFailed);
  const bool taken = answer.U16(kTransferredOffset) == parameters.count;
  return operation.Finish(taken ? Result::Success : Result::WrongDataLength);
}

}  // namespace merovane::commands
