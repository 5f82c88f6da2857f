#include "commands/handset/bluetooth.h"

#include <algorithm>
#include <array>

#include "commands/handset/radio_address.h"
#include "commands/operation.h"
#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kType = 33;
// Whatever the request's subtype.
constexpr FrameId kAnswer{kType, 0};
constexpr std::uint32_t kSettingMs = 3000;
constexpr std::uint32_t kQuickMs = 1000;

constexpr std::uint32_t kMaxChannel = 78;
constexpr std::uint32_t kMaxDacValue = 63;
constexpr std::size_t kRadioTestWords = 4;
constexpr std::size_t kChannelWord = 1;

Answer Ask(Phone& phone, std::uint8_t subtype, std::span<const std::uint8_t> payload,
           std::uint32_t timeoutMs) {
  return phone.link.SendAndWait({kType, subtype}, kAnswer, payload, timeoutMs);
}

Result TellWord(Phone& phone, Operation& operation, std::uint8_t subtype, std::uint32_t word,
                std::uint32_t timeoutMs) {
  std::array<std::uint8_t, 4> payload;
  PutU32(payload, 0, word);
  return operation.Finish(Ask(phone, subtype, payload, timeoutMs).Why());
}

}  // namespace

Result EnterEUTMode(Phone& phone, std::uint32_t enter) {
  Operation operation(phone, 31);
  operation.Log(enter ? "EnterEUTMode:" : "LeaveEUTMode:");
  return operation.Finish(Ask(phone, enter ? 0 : 1, {}, kSettingMs).Why());
}

Result SaveBTAddr(Phone& phone, const std::uint8_t* address) {
  Operation operation(phone, 32);
  if (!address) return Result::InvalidParam;
  operation.Log("SaveBTAddr:");
  return operation.Finish(Ask(phone, 2, Reversed(address), kSettingMs).Why());
}

Result LoadBTAddr(Phone& phone, std::uint8_t* address) {
  Operation operation(phone, 33);
  if (!address) return Result::InvalidParam;
  operation.Log("LoadBTAddr:");
  const Answer answer = Ask(phone, 3, {}, kQuickMs);
  const auto payload = answer.Payload();
  // Silence counts as an answer that is too short; neither is logged.
  if (payload.size() < kAddressBytes) return Result::BluetoothFailed;
  std::ranges::copy(Reversed(payload.data()), address);
  return operation.Finish(answer.Why());
}

Result StartBtRadioTest(Phone& phone, std::uint32_t start, const std::uint32_t* words) {
  Operation operation(phone, 34);
  if (!start) {
    operation.Log("StopBtRadioTest:");
    return operation.Finish(Ask(phone, 5, {}, kQuickMs).Why());
  }
  if (!words || words[kChannelWord] > kMaxChannel) return Result::InvalidParam;
  operation.Log("StartBtRadioTest:");
  std::array<std::uint8_t, 4 * kRadioTestWords> payload;
  for (std::size_t at = 0; at < kRadioTestWords; ++at) PutU32(payload, 4 * at, words[at]);
  return operation.Finish(Ask(phone, 4, payload, kSettingMs).Why());
}

Result StartBtAFC(Phone& phone, std::uint32_t start, std::uint32_t channel) {
  Operation operation(phone, 35);
  if (!start) {
    operation.Log("StopBtAFC:");
    return operation.Finish(Ask(phone, 8, {}, kQuickMs).Why());
  }
  if (channel > kMaxChannel) return Result::InvalidParam;
  operation.Log("StartBtAFC:");
  return TellWord(phone, operation, 6, channel, kSettingMs);
}

Result SetBtDacValue(Phone& phone, std::uint32_t value) {
  Operation operation(phone, 36);
  if (value > kMaxDacValue) return Result::InvalidParam;
  operation.Log("SetBtDacValue:");
  return TellWord(phone, operation, 7, value, kQuickMs);
}

Result SaveBtDacValue(Phone& phone, std::uint32_t value) {
  Operation operation(phone, 37);
  if (value > kMaxDacValue) return Result::InvalidParam;
  operation.Log("SaveBtDacValue:");
  return TellWord(phone, operation, 9, value, kSettingMs);
}

Result LoadBtDacValue(Phone& phone, std::uint32_t* value) {
  Operation operation(phone, 38);
  if (!value) return Result::InvalidParam;
  operation.Log("LoadBtDacValue:");
  const Answer answer = Ask(phone, 10, {}, kQuickMs);
  // As with the address: not logged.
  if (answer.Payload().size() < sizeof *value) return Result::BluetoothFailed;
  *value = GetU32(answer.Payload(), 0);
  return operation.Finish(answer.Why());
}

}  // namespace merovane::commands
