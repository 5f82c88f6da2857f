// Items of the production flash area and NV items.
#include <algorithm>
#include <array>
#include <vector>

#include "commands/answer_fields.h"
#include "commands/storage_frames.h"
#include "declared/memory.h"

namespace merovane::commands {
namespace {

constexpr FrameId kWriteNv{kStorageType, 1};
constexpr FrameId kReadFlash{kStorageType, 2};
constexpr FrameId kWriteFlash{kStorageType, 3};
constexpr FrameId kEraseFlash{kStorageType, 4};
constexpr std::uint32_t kWriteFlashMs = 4000;
constexpr std::uint32_t kWriteNvMs = 1000;
constexpr std::uint32_t kReadNvPartMs = 2000;

constexpr std::size_t kFlashHeaderBytes = 4;

std::array<std::uint8_t, kFlashHeaderBytes> FlashHeader(ByteOrder order, std::uint16_t item,
                                                        std::size_t length) {
  std::array<std::uint8_t, kFlashHeaderBytes> header;
  order.PutU16(header, 0, item);
  order.PutU16(header, 2, static_cast<std::uint16_t>(length));
  return header;
}

std::vector<std::uint8_t> Joined(std::span<const std::uint8_t> header,
                                 std::span<const std::uint8_t> data) {
  std::vector<std::uint8_t> payload;
  payload.reserve(header.size() + data.size());
  payload.assign(header.begin(), header.end());
  payload.insert(payload.end(), data.begin(), data.end());
  return payload;
}

}  // namespace

Result body::ReadFlash(Operation& operation, std::uint16_t item, std::span<std::uint8_t> data,
                       std::uint32_t& dataLength, std::uint32_t timeoutMs) {
  const auto request = FlashHeader(operation.link.Order(), item, data.size());
  const Answer answer = operation.link.SendAndWait(kReadFlash, kStorageAnswer, request, timeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  const auto payload = answer.Payload();
  if (payload.size() <= kFlashHeaderBytes) {
    dataLength = 0;
    return operation.Finish(Result::WrongDataLength);
  }
  const auto arrived = payload.subspan(kFlashHeaderBytes);
  dataLength = CopyCut(arrived, data);
  return operation.Finish(dataLength < arrived.size() ? Result::BufferTooSmall : Result::Success);
}

Result body::WriteFlash(Operation& operation, std::uint16_t item,
                        std::span<const std::uint8_t> data, std::uint32_t timeoutMs) {
  const auto request = Joined(FlashHeader(operation.link.Order(), item, data.size()), data);
  const std::uint32_t limitMs = timeoutMs == 0 ? kWriteFlashMs : timeoutMs;
  return operation.Finish(
      operation.link.SendAndWait(kWriteFlash, kStorageAnswer, request, limitMs).Why());
}

Result body::EraseFlash(Operation& operation, std::uint32_t timeoutMs) {
  return operation.Finish(
      operation.link.SendAndWait(kEraseFlash, kStorageAnswer, {}, timeoutMs).Why());
}

Result body::ReadNv(Operation& operation, std::uint16_t item, std::span<std::uint8_t> data,
                    std::uint32_t& dataLength, std::uint32_t timeoutMs) {
  const auto request = NvHeader(operation.link.Order(), item);
  const Answer answer = operation.link.SendAndWait(kReadNv, kStorageAnswer, request, timeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  // Without sign: an answer shorter than the item id counts as one that is too long.
  const std::size_t arrived = answer.Payload().size() - kNvHeaderBytes;
  const std::size_t delivered = std::min(arrived, data.size());
  CopyZeroFilled(answer.Payload(), kNvHeaderBytes, data.first(delivered));
  dataLength = static_cast<std::uint32_t>(delivered);
  return operation.Finish(delivered < arrived ? Result::BufferTooSmall : Result::Success);
}

Result body::WriteNv(Operation& operation, std::uint16_t item, std::span<const std::uint8_t> data) {
  const auto request = Joined(NvHeader(operation.link.Order(), item), data);
  return operation.Finish(
      operation.link.SendAndWait(kWriteNv, kStorageAnswer, request, kWriteNvMs).Why());
}

// A step of larger work: neither its name nor its result is logged.
Result body::ReadNvFromHandset(Operation& operation, std::uint16_t item, std::uint32_t offset,
                               std::uint32_t length, std::span<std::uint8_t> data,
                               std::uint32_t& dataLength) {
  const auto request = NvHeader(operation.link.Order(), item);
  const Answer answer = operation.link.SendAndWait(kReadNv, kStorageAnswer, request, kReadNvPartMs);
  if (!answer) return answer.Why();
  const std::size_t arrived = answer.Payload().size();
  if (offset > arrived || length > arrived - offset) return Result::InvalidParam;
  const auto part = data.first(std::min<std::size_t>(length, data.size()));
  // The range counts the item id, after which the data stands: its last two bytes may not be there.
  CopyZeroFilled(answer.Payload(), kNvHeaderBytes + offset, part);
  dataLength = static_cast<std::uint32_t>(part.size());
  return Result::Success;
}

}  // namespace merovane::commands
