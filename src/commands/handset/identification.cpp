// What the handset tells of its chip, its LCDs, its flash and its software, and the 7310K's words.
#include "commands/handset/identification.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "commands/answer_fields.h"
#include "declared/memory.h"

namespace merovane::commands {
namespace {

constexpr FrameId kFirstLcd{kIdentificationType, 2};
constexpr FrameId kSecondLcd{kIdentificationType, 3};
constexpr FrameId kFlashInfo{kIdentificationType, 4};
constexpr FrameId kVersion{0, 0};
constexpr std::uint32_t kTimeoutMs = 1000;

// Of an LCD controller's identification; a longer one is cut.
constexpr std::size_t kMaxLcdIdBytes = 100;

static_assert(sizeof(QV_FLASH_INFO) == 384);
constexpr std::size_t kFlashInfoHeadBytes = 12;
constexpr std::size_t kFlashRegionBytes = 12;
constexpr std::uint32_t kMaxFlashRegions = 31;

constexpr std::uint8_t k7310KType = 37;
constexpr std::size_t k7310KWords = 10;
constexpr std::size_t kShort7310KWords = 3;

std::uint32_t Limit7310K(std::uint32_t timeoutMs) {
  return timeoutMs == 0 ? kTimeoutMs : timeoutMs;
}

// An answer has all ten words or the first three; the output keeps what a shorter one lacks.
void Take7310KWords(const Answer& answer, std::span<std::uint16_t, k7310KWords> words) {
  std::size_t count = 0;
  if (answer.Payload().size() >= 2 * kShort7310KWords) count = kShort7310KWords;
  if (answer.Payload().size() >= 2 * k7310KWords) count = k7310KWords;
  for (std::size_t at = 0; at < count; ++at) words[at] = answer.U16(2 * at);
}

}  // namespace

Result ReadIdentificationWord(Operation& operation, FrameId id, std::uint32_t& word) {
  const Answer answer = operation.link.SendAndWaitSame(id, {}, kTimeoutMs);
  if (answer) word = answer.U32(0);
  return operation.Finish(answer.Why());
}

Result body::GetLcdIcDriverID(Operation& operation, bool secondLcd, std::span<std::uint8_t> id,
                              std::uint32_t& length) {
  const Answer answer =
      operation.link.SendAndWaitSame(secondLcd ? kSecondLcd : kFirstLcd, {}, kTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  const auto room = id.first(std::min(id.size(), kMaxLcdIdBytes));
  const std::uint32_t delivered = CopyCut(answer.Payload(), room);
  length = static_cast<std::uint32_t>(answer.Payload().size());
  return operation.Finish(delivered < length ? Result::BufferTooSmall : Result::Success);
}

Result body::GetFlashInfo(Operation& operation, QV_FLASH_INFO& info) {
  const Answer answer = operation.link.SendAndWaitSame(kFlashInfo, {}, kTimeoutMs);
  if (!answer) return operation.Finish(answer.Why());
  auto description = FirstBytes<sizeof(QV_FLASH_INFO)>(answer.Payload());
  const std::uint32_t regions = answer.U32(8);
  // Alone among the failures of this command not logged.
  if (regions > kMaxFlashRegions) return Result::ParseFailed;
  // What follows the last region is passed on as it arrived.
  operation.link.Order().SwapArray32(
      std::span(description).first(kFlashInfoHeadBytes + regions * kFlashRegionBytes));
  std::memcpy(&info, description.data(), description.size());
  return operation.Finish(Result::Success);
}

Result body::GetMSVersion(Operation& operation, std::span<char> version) {
  const Answer answer = operation.link.SendAndWaitSame(kVersion, {}, kTimeoutMs);
  CopyCut(answer.Payload(), {reinterpret_cast<std::uint8_t*>(version.data()), version.size()});
  return operation.Finish(answer.Why());
}

Result body::Send7310KCommand(Operation& operation, std::uint8_t command,
                              std::span<const std::uint16_t, k7310KWords> words,
                              std::span<std::uint16_t, k7310KWords> answeredWords,
                              std::uint32_t timeoutMs) {
  const ByteOrder order = operation.link.Order();
  std::array<std::uint8_t, 2 * k7310KWords> request;
  for (std::size_t at = 0; at < k7310KWords; ++at) order.PutU16(request, 2 * at, words[at]);
  const Answer answer =
      operation.link.SendAndWaitSame({k7310KType, command}, request, Limit7310K(timeoutMs));
  Take7310KWords(answer, answeredWords);
  return operation.Finish(answer.Why());
}

Result body::Recv7310KCommand(Operation& operation, std::uint8_t command,
                              std::span<std::uint16_t, k7310KWords> answeredWords,
                              std::uint32_t timeoutMs) {
  const Answer answer = operation.link.WaitForAnswer({k7310KType, command}, Limit7310K(timeoutMs));
  Take7310KWords(answer, answeredWords);
  return operation.Finish(answer.Why());
}

}  // namespace merovane::commands
