// The IMEI as the handset keeps it among its NV items.
#include <algorithm>

#include "commands/imei.h"
#include "commands/storage_frames.h"
#include "declared/gsm_calibration.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kImeiItem = 5;
constexpr std::uint32_t kTimeoutMs = 1000;

Result ReadPacked(PhoneLink& link, std::span<std::uint8_t, kPackedImeiBytes> imei) {
  const auto request = NvHeader(link.Order(), kImeiItem);
  const Answer answer = link.SendAndWaitSame(kReadNv, request, kTimeoutMs);
  if (!answer) return answer.Why();
  const auto payload = answer.Payload();
  if (payload.size() < request.size() + imei.size() ||
      !std::ranges::equal(payload.first(request.size()), request)) {
    return Result::ParseFailed;
  }
  std::ranges::copy(payload.subspan(request.size(), imei.size()), imei.begin());
  return Result::Success;
}

}  // namespace

Result body::ReadIMEI(Operation& operation, std::span<std::uint8_t, 8> imei) {
  return operation.Finish(ReadPacked(operation.link, imei));
}

Result body::ReadIMEI_ASCII(Operation& operation, std::span<char, 16> text) {
  PackedImei packed{};
  const Result result = ReadPacked(operation.link, packed);
  if (Succeeded(result)) std::ranges::copy(DecimalImeiText(packed), text.begin());
  return operation.Finish(result);
}

}  // namespace merovane::commands
