#include "commands/handset/identification.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

#include "commands/answer_fields.h"
#include "commands/operation.h"
#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kIdentificationType = 93;
constexpr std::uint8_t k7310KType = 37;
// Of an LCD controller's identification; a longer one is cut.
constexpr std::size_t kMaxLcdIdBytes = 100;
constexpr std::size_t k7310KWords = 10;
constexpr std::size_t kShort7310KWords = 3;
constexpr std::uint32_t kDefault7310KMs = 1000;

static_assert(sizeof(QV_FLASH_INFO) == 384);
constexpr std::size_t kFlashInfoHeadBytes = 12;
constexpr std::size_t kFlashRegionBytes = 12;
constexpr std::uint32_t kMaxFlashRegions = 31;

Result ReadWord(Phone& phone, Operation& operation, std::uint8_t subtype, std::uint32_t* word) {
  const Answer answer = phone.link.SendAndWaitSame({kIdentificationType, subtype}, {}, 1000);
  if (answer) *word = GetU32(FirstBytes<4>(answer.Payload()), 0);
  return operation.Finish(answer.Why());
}

// An answer has all ten words or the first three; the output keeps what a shorter one lacks.
void Take7310KWords(std::span<const std::uint8_t> payload, std::uint16_t* words) {
  std::size_t count = 0;
  if (payload.size() >= 2 * kShort7310KWords) count = kShort7310KWords;
  if (payload.size() >= 2 * k7310KWords) count = k7310KWords;
  for (std::size_t at = 0; at < count; ++at) words[at] = GetU16(payload, 2 * at);
}

}  // namespace

Result GetChipID(Phone& phone, std::uint32_t* id) {
  Operation operation(phone, 40);
  if (!id) return Result::InvalidParam;
  operation.Log("GetChipID:");
  return ReadWord(phone, operation, 0, id);
}

Result GetChipType(Phone& phone, std::uint32_t* type) {
  Operation operation(phone, 41);
  if (!type) return Result::InvalidParam;
  operation.Log("GetChipType:");
  return ReadWord(phone, operation, 1, type);
}

Result GetLcdIcDriverID(Phone& phone, std::uint32_t secondLcd, std::uint8_t* id,
                        std::int32_t capacity, std::uint32_t* length) {
  Operation operation(phone, 42);
  if (!id || capacity <= 0 || !length) return Result::InvalidParam;
  operation.Log("GetLcdIcDriverID:");
  const FrameId request{kIdentificationType, static_cast<std::uint8_t>(secondLcd ? 3 : 2)};
  const std::span<std::uint8_t> out(id,
                                    std::min(static_cast<std::size_t>(capacity), kMaxLcdIdBytes));
  const Result result = phone.link.SendAndWait(request, request, {}, out, length, 1000);
  if (Succeeded(result) && *length > out.size()) return operation.Finish(Result::BufferTooSmall);
  return operation.Finish(result);
}

Result GetFlashInfo(Phone& phone, QV_FLASH_INFO* info) {
  Operation operation(phone, 43);
  if (!info) return Result::InvalidParam;
  operation.Log("GetFlashInfo:");
  const Answer answer = phone.link.SendAndWaitSame({kIdentificationType, 4}, {}, 1000);
  if (!answer) return operation.Finish(answer.Why());
  auto description = FirstBytes<sizeof(QV_FLASH_INFO)>(answer.Payload());
  const std::uint32_t regions = GetU32(description, 8);
  // Alone among the failures of this command not logged.
  if (regions > kMaxFlashRegions) return Result::ParseFailed;
  // What stands behind the last region is the handset's own.
  SwapArray32(std::span(description).first(kFlashInfoHeadBytes + regions * kFlashRegionBytes));
  std::memcpy(info, description.data(), description.size());
  return operation.Finish(Result::Success);
}

Result GetMSVersion(Phone& phone, char* version, std::uint32_t capacity) {
  Operation operation(phone, 22);
  if (!version || !IsCapacity(capacity)) return Result::InvalidParam;
  operation.Log("GetMSVersion:");
  const Answer answer = phone.link.SendAndWaitSame({0, 0}, {}, 1000);
  const auto text = answer.Payload();
  if (!text.empty()) {
    std::memcpy(version, text.data(), std::min<std::size_t>(text.size(), capacity));
  }
  return operation.Finish(answer.Why());
}

Result Send7310KCommand(Phone& phone, std::uint8_t command, const std::uint16_t* words,
                        std::uint16_t* answeredWords, std::uint32_t timeoutMs) {
  Operation operation(phone, 218);
  if (!words || !answeredWords) return Result::InvalidParam;
  operation.Log("Send7310KCommand ID:" + std::to_string(command));
  std::array<std::uint8_t, 2 * k7310KWords> request;
  for (std::size_t at = 0; at < k7310KWords; ++at) PutU16(request, 2 * at, words[at]);
  const Answer answer = phone.link.SendAndWaitSame({k7310KType, command}, request,
                                                   timeoutMs == 0 ? kDefault7310KMs : timeoutMs);
  Take7310KWords(answer.Payload(), answeredWords);
  return operation.Finish(answer.Why());
}

Result Recv7310KCommand(Phone& phone, std::uint8_t command, std::uint16_t* answeredWords,
                        std::uint32_t timeoutMs) {
  Operation operation(phone, 236);
  if (!answeredWords) return Result::InvalidParam;
  operation.Log("Recv7310KCommand");
  AnswerBuffer buffer;
  std::uint32_t length = 0;
  const Result result = phone.link.WaitForAnswer({k7310KType, command}, buffer, &length,
                                                 timeoutMs == 0 ? kDefault7310KMs : timeoutMs);
  if (Succeeded(result)) {
    Take7310KWords(std::span<const std::uint8_t>(buffer).first(length), answeredWords);
  }
  return operation.Finish(result);
}

}  // namespace merovane::commands
