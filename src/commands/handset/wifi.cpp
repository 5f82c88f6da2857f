#include "commands/handset/wifi.h"

#include <algorithm>
#include <array>

#include "commands/answer_fields.h"
#include "commands/handset/radio_address.h"
#include "declared/short_range_radio.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kType = 54;
constexpr std::uint32_t kSettingMs = 3000;
constexpr std::uint32_t kQuickMs = 1000;
constexpr std::uint32_t kFactorWriteMs = 8000;

Answer Ask(PhoneLink& link, std::uint8_t subtype) {
  return link.SendAndWaitSame({kType, subtype}, {}, kQuickMs);
}

// A request of which only the status matters. A failure that the handset reports is not logged.
Result Tell(Operation& operation, std::uint8_t subtype, std::span<const std::uint8_t> payload,
            std::uint32_t timeoutMs) {
  const Answer answer = operation.link.SendAndWaitSame({kType, subtype}, payload, timeoutMs);
  if (TellsFailure(answer)) return Result::WifiFailed;
  return operation.Finish(answer.Why());
}

Result TellWord(Operation& operation, std::uint8_t subtype, std::uint32_t word,
                std::uint32_t timeoutMs) {
  std::array<std::uint8_t, 4> payload;
  operation.link.Order().PutU32(payload, 0, word);
  return Tell(operation, subtype, payload, timeoutMs);
}

Result ReadFactor(Operation& operation, QV_WIFI_FACTOR& factor) {
  operation.Log("ReadWifiFactor:");
  const Answer answer = Ask(operation.link, 10);
  if (TellsFailure(answer)) return Result::WifiFailed;
  if (answer) factor = {0, answer.U32(4), answer.U32(8)};
  return operation.Finish(answer.Why());
}

// Sent in the transceiver's own order, though it is read in the handset's.
Result SendFactor(Operation& operation, std::uint8_t subtype, const QV_WIFI_FACTOR& factor) {
  std::array<std::uint8_t, 12> payload{};
  PutU32BigEndian(payload, 4, factor.index);
  PutU32BigEndian(payload, 8, factor.value);
  return Tell(operation, subtype, payload, kFactorWriteMs);
}

}  // namespace

Result SetWifi(Operation& operation, WifiSetting setting, std::uint32_t value) {
  return TellWord(operation, static_cast<std::uint8_t>(setting), value, kSettingMs);
}

Result body::WIFI_EnterEUTMode(Operation& operation, bool enter) {
  return SetWifi(operation, WifiSetting::EutMode, enter ? 1 : 0);
}

// Reversed here and not in WIFI_LoadAddr: handsets in the field hold addresses saved this way, and
// stations expect to read them back reversed.
Result body::WIFI_SaveAddr(Operation& operation,
                           std::span<const std::uint8_t, kAddressBytes> address) {
  return Tell(operation, 1, Reversed(address), kSettingMs);
}

Result body::WIFI_LoadAddr(Operation& operation, std::span<std::uint8_t, kAddressBytes> address) {
  const Answer answer = Ask(operation.link, 2);
  if (!answer) return operation.Finish(answer.Why());
  const auto payload = answer.Payload();
  if (TellsFailure(answer) || payload.size() < kStatusBytes + kAddressBytes)
    return Result::WifiFailed;
  std::ranges::copy(payload.subspan<kStatusBytes, kAddressBytes>(), address.begin());
  return operation.Finish(Result::Success);
}

Result body::WIFI_SetChannel(Operation& operation, std::uint32_t channel) {
  constexpr std::uint32_t kMaxChannel = 13;
  constexpr std::uint32_t kMiddleChannel = 6;
  const bool known = channel >= 1 && channel <= kMaxChannel;
  return SetWifi(operation, WifiSetting::Channel, known ? channel : kMiddleChannel);
}

Result body::WIFI_SetTxStatus(Operation& operation, bool enable, std::uint32_t argument) {
  // The transceiver's own order, whatever the handset's is.
  std::array<std::uint8_t, 8> payload;
  PutU32BigEndian(payload, 0, enable ? 1 : 0);
  PutU32BigEndian(payload, 4, argument);
  return Tell(operation, 7, payload, kSettingMs);
}

Result body::WIFI_SetRxStatus(Operation& operation, std::uint32_t mode) {
  return TellWord(operation, 8, std::min<std::uint32_t>(mode, QV_WIFI_RX_CLEAR_COUNTS), kQuickMs);
}

Result body::WIFI_ReadRxValue(Operation& operation, std::uint32_t& first, std::uint32_t& second) {
  const Answer answer = Ask(operation.link, 9);
  if (TellsFailure(answer)) return Result::WifiFailed;
  // Without an answer the counts read 0.
  first = answer.U32(4);
  second = answer.U32(8);
  return operation.Finish(answer.Why());
}

Result body::WIFI_OperFactor(Operation& operation, std::uint32_t action, QV_WIFI_FACTOR& factor) {
  constexpr std::uint32_t kMaxIndex = 5;
  if (action == QV_WIFI_FACTOR_READ) return ReadFactor(operation, factor);
  // Refused as the handset itself would refuse it, and not logged.
  if (action != QV_WIFI_FACTOR_WRITE && action != QV_WIFI_FACTOR_SET) return Result::WifiFailed;
  if (factor.index < 1 || factor.index > kMaxIndex) return Result::WifiFailed;
  const bool write = action == QV_WIFI_FACTOR_WRITE;
  operation.Log(write ? "WriteWifiFactor:" : "SetWifiFactor:");
  return SendFactor(operation, write ? 11 : 12, factor);
}

Result body::WIFI_SetCrystalCap(Operation& operation,
                                std::span<const std::uint8_t, 2> capacitance) {
  return Tell(operation, 13, capacitance, kSettingMs);
}

}  // namespace merovane::commands
