#include "commands/handset/gps.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "commands/answer_fields.h"
#include "commands/handset/gps_nv_block.h"
#include "commands/operation.h"
#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr FrameId kGps{35, 0};
constexpr std::uint32_t kTimeoutMs = 1000;
// Requests and answers have one size, whatever they carry.
using GpsMessage = std::array<std::uint8_t, 264>;
constexpr std::size_t kDataOffset = 8;
constexpr std::size_t kCommandBytes = 4;
constexpr std::size_t kCommandAndLengthBytes = 8;

constexpr std::uint32_t kOpen = 0;
constexpr std::uint32_t kClose = 3;
constexpr std::uint32_t kWriteNv = 4;
constexpr std::uint32_t kReadNv = 5;

GpsMessage NvRequest(std::uint32_t command) {
  GpsMessage request{};
  PutU32(request, 0, command);
  PutU32(request, 4, kGpsNvBytes);
  return request;
}

// A handset that did what it was told repeats the request's first bytes. An answer below its full
// size is not looked at.
Result Verdict(const Answer& answer, const GpsMessage& request, std::size_t repeatedBytes) {
  const auto payload = answer.Payload();
  if (payload.size() < request.size()) return answer.Why();
  const bool repeated =
      std::equal(request.begin(), request.begin() + repeatedBytes, payload.begin());
  return repeated ? answer.Why() : Result::GpsFailed;
}

}  // namespace

Result GpsOpen(Phone& phone, std::uint32_t open) {
  Operation operation(phone, 48);
  operation.Log(open ? "GpsOpen:" : "GpsClose:");
  GpsMessage request{};
  PutU32(request, 0, open ? kOpen : kClose);
  const Answer answer = phone.link.SendAndWaitSame(kGps, request, kTimeoutMs);
  return operation.Finish(Verdict(answer, request, kCommandBytes));
}

Result GpsWriteNv(Phone& phone, const std::uint8_t* block) {
  Operation operation(phone, 49);
  if (!block) return Result::InvalidParam;
  operation.Log("GpsWriteNv:");
  GpsMessage request = NvRequest(kWriteNv);
  const auto data = std::span(request).subspan<kDataOffset, kGpsNvBytes>();
  std::memcpy(data.data(), block, data.size());
  ConvertGpsNvBlock(data);
  const Answer answer = phone.link.SendAndWaitSame(kGps, request, kTimeoutMs);
  return operation.Finish(Verdict(answer, request, kCommandAndLengthBytes));
}

Result GpsReadNv(Phone& phone, std::uint8_t* block) {
  Operation operation(phone, 50);
  if (!block) return Result::InvalidParam;
  operation.Log("GpsReadNv:");
  const GpsMessage request = NvRequest(kReadNv);
  const Answer answer = phone.link.SendAndWaitSame(kGps, request, kTimeoutMs);
  if (answer) {
    // Delivered from an answer to something else as well.
    const std::span<std::uint8_t, kGpsNvBytes> out(block, kGpsNvBytes);
    CopyZeroFilled(answer.Payload(), kDataOffset, out);
    ConvertGpsNvBlock(out);
  }
  return operation.Finish(Verdict(answer, request, kCommandAndLengthBytes));
}

}  // namespace merovane::commands
