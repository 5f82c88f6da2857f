// The GPS receiver.
#include <algorithm>
#include <array>

#include "commands/answer_fields.h"
#include "commands/handset/gps_nv_block.h"
#include "declared/peripherals.h"

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

GpsMessage NvRequest(ByteOrder order, std::uint32_t command) {
  GpsMessage request{};
  order.PutU32(request, 0, command);
  order.PutU32(request, 4, kGpsNvBytes);
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

Result body::GpsOpen(Operation& operation, bool open) {
  GpsMessage request{};
  operation.link.Order().PutU32(request, 0, open ? kOpen : kClose);
  const Answer answer = operation.link.SendAndWaitSame(kGps, request, kTimeoutMs);
  return operation.Finish(Verdict(answer, request, kCommandBytes));
}

Result body::GpsWriteNv(Operation& operation, std::span<const std::uint8_t, kGpsNvBytes> block) {
  const ByteOrder order = operation.link.Order();
  GpsMessage request = NvRequest(order, kWriteNv);
  const auto data = std::span(request).subspan<kDataOffset, kGpsNvBytes>();
  std::ranges::copy(block, data.begin());
  ConvertGpsNvBlock(order, data);
  const Answer answer = operation.link.SendAndWaitSame(kGps, request, kTimeoutMs);
  return operation.Finish(Verdict(answer, request, kCommandAndLengthBytes));
}

Result body::GpsReadNv(Operation& operation, std::span<std::uint8_t, kGpsNvBytes> block) {
  const ByteOrder order = operation.link.Order();
  const GpsMessage request = NvRequest(order, kReadNv);
  const Answer answer = operation.link.SendAndWaitSame(kGps, request, kTimeoutMs);
  if (answer) {
    // Delivered from an answer to something else as well.
    CopyZeroFilled(answer.Payload(), kDataOffset, block);
    ConvertGpsNvBlock(order, block);
  }
  return operation.Finish(Verdict(answer, request, kCommandAndLengthBytes));
}

}  // namespace merovane::commands
