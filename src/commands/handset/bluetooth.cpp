#include "commands/handset/bluetooth.h"

#include <algorithm>
#include <array>

#include "commands/handset/radio_address.h"
#include "declared/short_range_radio.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kType = 33;
// Whatever the request's subtype.
constexpr FrameId kAnswer{kType, 0};
constexpr std::uint32_t kSettingMs = 3000;
constexpr std::uint32_t kQuickMs = 1000;

constexpr std::size_t kRadioTestWords = 4;

Answer Ask(PhoneLink& link, std::uint8_t subtype, std::span<const std::uint8_t> payload,
           std::uint32_t timeoutMs) {
  return link.SendAndWait({kType, subtype}, kAnswer, payload, timeoutMs);
}

Result TellWord(Operation& operation, std::uint8_t subtype, std::uint32_t word,
                std::uint32_t timeoutMs) {
  std::array<std::uint8_t, 4> payload;
  operation.link.Order().PutU32(payload, 0, word);
  return operation.Finish(Ask(operation.link, subtype, payload, timeoutMs).Why());
}

}  // namespace

Result body::EnterEUTMode(Operation& operation, bool enter) {
  return operation.Finish(Ask(operation.link, enter ? 0 : 1, {}, kSettingMs).Why());
}

Result body::SaveBTAddr(Operation& operation,
                        std::span<const std::uint8_t, kAddressBytes> address) {
  return operation.Finish(Ask(operation.link, 2, Reversed(address), kSettingMs).Why());
}

Result body::LoadBTAddr(Operation& operation, std::span<std::uint8_t, kAddressBytes> address) {
  const Answer answer = Ask(operation.link, 3, {}, kQuickMs);
  const auto payload = answer.Payload();
  // No answer counts as one that is too short; neither is logged.
  if (payload.size() < kAddressBytes) return Result::BluetoothFailed;
  std::ranges::copy(Reversed(payload.first<kAddressBytes>()), address.begin());
  return operation.Finish(answer.Why());
}

Result body::StartBtRadioTest(Operation& operation, bool start,
                              std::span<const std::uint32_t> words) {
  if (!start) return operation.Finish(Ask(operation.link, 5, {}, kQuickMs).Why());
  const ByteOrder order = operation.link.Order();
  std::array<std::uint8_t, 4 * kRadioTestWords> payload;
  for (std::size_t at = 0; at < kRadioTestWords; ++at) order.PutU32(payload, 4 * at, words[at]);
  return operation.Finish(Ask(operation.link, 4, payload, kSettingMs).Why());
}

Result body::StartBtAFC(Operation& operation, bool start, std::uint32_t channel) {
  if (!start) return operation.Finish(Ask(operation.link, 8, {}, kQuickMs).Why());
  return TellWord(operation, 6, channel, kSettingMs);
}

Result body::SetBtDacValue(Operation& operation, std::uint32_t value) {
  return TellWord(operation, 7, value, kQuickMs);
}

Result body::SaveBtDacValue(Operation& operation, std::uint32_t value) {
  return TellWord(operation, 9, value, kSettingMs);
}

Result body::LoadBtDacValue(Operation& operation, std::uint32_t& value) {
  const Answer answer = Ask(operation.link, 10, {}, kQuickMs);
  // As with the address: not logged.
  if (answer.Payload().size() < sizeof value) return Result::BluetoothFailed;
  value = answer.U32(0);
  return operation.Finish(answer.Why());
}

}  // namespace merovane::commands
