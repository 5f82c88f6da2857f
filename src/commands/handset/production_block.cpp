#include "commands/handset/production_block.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "commands/answer_fields.h"
#include "commands/crc16.h"
#include "commands/operation.h"
#include "platform/memory.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kProductType = 95;
constexpr std::uint8_t kVersionType = 96;
constexpr std::uint8_t kImeiCountType = 97;
constexpr std::uint8_t kAnswerSubtype = 1;
constexpr std::uint32_t kTimeoutMs = 3000;
// Of an answer; a longer one is cut here, so its checksum does not match.
constexpr std::size_t kMaxAnswerBytes = 1000;

Result ReadBlock(Phone& phone, std::uint8_t type, std::uint8_t* block, std::uint32_t capacity,
                 std::uint32_t* length) {
  Operation operation(phone, 238);
  if (!block || !IsCapacity(capacity) || !length || !platform::IsWritable(block, capacity))
    return Result::InvalidParam;
  *length = 0;
  // The version block is logged under this name as well.
  operation.Log("Read Product Info");

  const Answer answer =
      phone.link.SendAndWait({type, 0x81}, {type, kAnswerSubtype}, kEmptyBlock, kTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  const auto payload = answer.Payload().first(std::min(answer.Payload().size(), kMaxAnswerBytes));
  if (payload.size() < kChecksumBytes) return operation.Finish(Result::WrongDataLength);
  // Not logged, and nothing of the damaged block is delivered.
  if (!ChecksumMatches(payload)) return Result::ChecksumMismatch;
  const auto arrived = payload.first(payload.size() - kChecksumBytes);
  *length = static_cast<std::uint32_t>(arrived.size());
  const std::size_t delivered = std::min<std::size_t>(arrived.size(), capacity);
  std::memcpy(block, arrived.data(), delivered);
  return operation.Finish(delivered < arrived.size() ? Result::BufferTooSmall : Result::Success);
}

}  // namespace

Result FastWriteProduct(Phone& phone, const std::uint8_t* block, std::uint32_t length) {
  Operation operation(phone, 238);
  if (!block || length > kMaxPayloadBytes - kChecksumBytes) return Result::InvalidParam;
  operation.Log("Fast Write Production Info:");
  return operation.Finish(phone.link.SendAndWaitSame({kProductType, kAnswerSubtype},
                                                     WithChecksum({block, length}), kTimeoutMs));
}

Result FastReadProduct(Phone& phone, std::uint8_t* block, std::uint32_t capacity,
                       std::uint32_t* length) {
  return ReadBlock(phone, kProductType, block, capacity, length);
}

Result FastReadVerSion(Phone& phone, std::uint8_t* block, std::uint32_t capacity,
                       std::uint32_t* length) {
  return ReadBlock(phone, kVersionType, block, capacity, length);
}

Result FastReaIMEICount(Phone& phone, std::uint32_t* count) {
  constexpr std::size_t kMinAnswerBytes = 10;
  // No limit of its own: it waits as long as the setting adds to every wait.
  constexpr std::uint32_t kNoTimeoutMs = 0;
  Operation operation(phone, 220);
  if (!count) return Result::InvalidParam;
  operation.Log("Read IMEI count:");
  const Answer answer = phone.link.SendAndWait(
      {kImeiCountType, 0x80}, {kImeiCountType, kAnswerSubtype}, kEmptyBlock, kNoTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  // As it arrived, whatever the handset's byte order, and from an answer that is too short as well.
  std::memcpy(count, FirstBytes<4>(answer.Payload()).data(), sizeof *count);
  return operation.Finish(answer.Payload().size() < kMinAnswerBytes ? Result::WrongDataLength
                                                                    : Result::Success);
}

}  // namespace merovane::commands
