// The IMEI as the handset keeps it among its NV items.
#include <algorithm>
#include <array>

#include "commands/calibration/gsm.h"
#include "commands/imei.h"
#include "commands/operation.h"
#include "commands/storage_frames.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kImeiItem = 5;

Result ReadPacked(PhoneLink& link, PackedImei& imei) {
  const auto request = NvHeader(kImeiItem);
  const Answer answer = link.SendAndWaitSame(kReadNv, request, 1000);
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

Result ReadIMEI(Phone& phone, std::uint8_t* imei) {
  Operation operation(phone, 57);
  if (!imei) return Result::InvalidParam;
  operation.Log("ReadIMEI:");
  PackedImei packed{};
  const Result result = ReadPacked(phone.link, packed);
  if (Succeeded(result)) std::ranges::copy(packed, imei);
  return operation.Finish(result);
}

Result ReadIMEI_ASCII(Phone& phone, char* text) {
  Operation operation(phone, 58);
  if (!text) return Result::InvalidParam;
  operation.Log("ReadIMEI_ASCII:");
  PackedImei packed{};
  const Result result = ReadPacked(phone.link, packed);
  if (Succeeded(result)) std::ranges::copy(DecimalImeiText(packed), text);
  return operation.Finish(result);
}

}  // namespace merovane::commands
