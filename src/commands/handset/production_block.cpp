#include "commands/handset/production_block.h"

#include <algorithm>
#include <cstring>

#include "commands/answer_fields.h"
#include "commands/crc16.h"
#include "declared/identity.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kImeiCountType = 97;
constexpr std::uint8_t kAnswerSubtype = 1;
constexpr std::uint32_t kTimeoutMs = 3000;
// Of an answer; a longer one is cut here, so its checksum does not match.
constexpr std::size_t kMaxAnswerBytes = 1000;

}  // namespace

Result ReadBlock(Operation& operation, std::uint8_t type, std::span<std::uint8_t> block,
                 std::uint32_t& length) {
  length = 0;
  const Answer answer =
      operation.link.SendAndWait({type, 0x81}, {type, kAnswerSubtype}, kEmptyBlock, kTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  const auto payload = answer.Payload().first(std::min(answer.Payload().size(), kMaxAnswerBytes));
  if (payload.size() < kChecksumBytes) return operation.Finish(Result::WrongDataLength);
  // Not logged, and nothing of the damaged block is delivered.
  if (!ChecksumMatches(operation.link.Order(), payload)) return Result::ChecksumMismatch;
  const auto arrived = payload.first(payload.size() - kChecksumBytes);
  length = static_cast<std::uint32_t>(arrived.size());
  const std::uint32_t delivered = CopyCut(arrived, block);
  return operation.Finish(delivered < length ? Result::BufferTooSmall : Result::Success);
}

Result body::FastWriteProduct(Operation& operation, std::span<const std::uint8_t> block) {
  const auto checked = WithChecksum(operation.link.Order(), block);
  return operation.Finish(
      operation.link.SendAndWaitSame({kProductType, kAnswerSubtype}, checked, kTimeoutMs).Why());
}

Result body::FastReaIMEICount(Operation& operation, std::uint32_t& count) {
  constexpr std::size_t kMinAnswerBytes = 10;
  // No limit of its own: it waits as long as the setting adds to every wait.
  constexpr std::uint32_t kNoTimeoutMs = 0;
  const Answer answer = operation.link.SendAndWait(
      {kImeiCountType, 0x80}, {kImeiCountType, kAnswerSubtype}, kEmptyBlock, kNoTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  // As it arrived, whatever the handset's byte order, and from an answer that is too short as well.
  std::memcpy(&count, FirstBytes<4>(answer.Payload()).data(), sizeof count);
  return operation.Finish(answer.Payload().size() < kMinAnswerBytes ? Result::WrongDataLength
                                                                    : Result::Success);
}

}  // namespace merovane::commands
