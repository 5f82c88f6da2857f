#include "commands/handset/flash_nv.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "commands/answer_fields.h"
#include "commands/operation.h"
#include "commands/storage_frames.h"
#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr FrameId kWriteNv{kStorageType, 1};
constexpr FrameId kReadFlash{kStorageType, 2};
constexpr FrameId kWriteFlash{kStorageType, 3};
constexpr FrameId kEraseFlash{kStorageType, 4};

constexpr std::size_t kFlashHeaderBytes = 4;
// The header's length field has 16 bits; a longer request would ask for something else.
constexpr std::uint32_t kMaxFlashBytes = 0xFFFF;
// What fits into one frame with the header.
constexpr std::size_t kMaxFlashWriteBytes = kMaxPayloadBytes - kFlashHeaderBytes;
constexpr std::size_t kMaxNvWriteBytes = kMaxPayloadBytes - kNvHeaderBytes;

std::array<std::uint8_t, kFlashHeaderBytes> FlashHeader(std::uint16_t item, std::uint32_t length) {
  std::array<std::uint8_t, kFlashHeaderBytes> header;
  PutU16(header, 0, item);
  PutU16(header, 2, static_cast<std::uint16_t>(length));
  return header;
}

std::vector<std::uint8_t> Joined(std::span<const std::uint8_t> header, const std::uint8_t* data,
                                 std::uint32_t length) {
  std::vector<std::uint8_t> payload;
  payload.reserve(header.size() + length);
  payload.assign(header.begin(), header.end());
  payload.insert(payload.end(), data, data + length);
  return payload;
}

}  // namespace

Result ReadFlash(Phone& phone, std::uint16_t item, std::uint8_t* data, std::int32_t length,
                 std::uint32_t* dataLength, std::uint32_t timeoutMs) {
  Operation operation(phone, 23);
  if (!data || length <= 0 || !dataLength) return Result::InvalidParam;
  const auto asked = static_cast<std::uint32_t>(length);
  if (asked > kMaxFlashBytes) return Result::InvalidParam;
  operation.Log("ReadFlash:");

  const Answer answer =
      phone.link.SendAndWait(kReadFlash, kStorageAnswer, FlashHeader(item, asked), timeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  const auto payload = answer.Payload();
  if (payload.size() <= kFlashHeaderBytes) {
    *dataLength = 0;
    return operation.Finish(Result::WrongDataLength);
  }
  const auto arrived = payload.subspan(kFlashHeaderBytes);
  const auto delivered = arrived.first(std::min<std::size_t>(arrived.size(), asked));
  std::memcpy(data, delivered.data(), delivered.size());
  *dataLength = static_cast<std::uint32_t>(delivered.size());
  return operation.Finish(delivered.size() < arrived.size() ? Result::BufferTooSmall
                                                            : Result::Success);
}

Result WriteFlash(Phone& phone, std::uint16_t item, const std::uint8_t* data, std::uint32_t length,
                  std::uint32_t timeoutMs) {
  Operation operation(phone, 24);
  if (!data || length == 0 || length > kMaxFlashWriteBytes) return Result::InvalidParam;
  operation.Log("WriteFlash:");
  const auto request = Joined(FlashHeader(item, length), data, length);
  const std::uint32_t limitMs = timeoutMs == 0 ? 4000 : timeoutMs;
  return operation.Finish(
      phone.link.SendAndWait(kWriteFlash, kStorageAnswer, request, limitMs).Why());
}

Result EraseFlash(Phone& phone, std::uint32_t timeoutMs) {
  Operation operation(phone, 25);
  if (timeoutMs == 0) return Result::InvalidParam;
  operation.Log("EraseFlash:");
  return operation.Finish(phone.link.SendAndWait(kEraseFlash, kStorageAnswer, {}, timeoutMs).Why());
}

Result ReadNv(Phone& phone, std::uint16_t item, std::uint8_t* data, std::uint32_t capacity,
              std::uint32_t* dataLength, std::uint32_t timeoutMs) {
  Operation operation(phone, 220);
  if (!data || !IsCapacity(capacity) || !dataLength) return Result::InvalidParam;
  operation.Log("ReadNv:");

  const Answer answer = phone.link.SendAndWait(kReadNv, kStorageAnswer, NvHeader(item), timeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  // Without sign: an answer shorter than the item id counts as one that is too long.
  const std::size_t arrived = answer.Payload().size() - kNvHeaderBytes;
  const std::size_t delivered = std::min<std::size_t>(arrived, capacity);
  CopyZeroFilled(answer.Payload(), kNvHeaderBytes, {data, delivered});
  *dataLength = static_cast<std::uint32_t>(delivered);
  return operation.Finish(delivered < arrived ? Result::BufferTooSmall : Result::Success);
}

Result WriteNv(Phone& phone, std::uint16_t item, const std::uint8_t* data, std::uint32_t length) {
  Operation operation(phone, 221);
  if (!data || length > kMaxNvWriteBytes) return Result::InvalidParam;
  operation.Log("WriteNv:");
  const auto request = Joined(NvHeader(item), data, length);
  return operation.Finish(phone.link.SendAndWait(kWriteNv, kStorageAnswer, request, 1000).Why());
}

Result ReadNvFromHandset(Phone& phone, std::uint16_t item, std::uint32_t offset,
                         std::uint32_t length, std::uint8_t* data, std::uint32_t capacity,
                         std::uint32_t* dataLength) {
  // A step of larger work: neither its name nor its result is logged.
  const Operation operation(phone, 47);
  if (!data || !IsCapacity(capacity) || !dataLength) return Result::InvalidParam;

  const Answer answer = phone.link.SendAndWait(kReadNv, kStorageAnswer, NvHeader(item), 2000);
  if (!answer) return answer.Why();
  const std::size_t arrived = answer.Payload().size();
  if (offset > arrived || length > arrived - offset) return Result::InvalidParam;
  const std::uint32_t delivered = std::min(length, capacity);
  // The range counts the item id, the data stands behind it: its last two bytes may not be there.
  CopyZeroFilled(answer.Payload(), kNvHeaderBytes + offset, {data, delivered});
  *dataLength = delivered;
  return Result::Success;
}

}  // namespace merovane::commands
