#include "commands/handset/wifi.h"

#include <algorithm>
#include <array>

#include "commands/answer_fields.h"
#include "commands/handset/radio_address.h"
#include "commands/operation.h"
#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kType = 54;
constexpr std::uint32_t kSettingMs = 3000;
constexpr std::uint32_t kQuickMs = 1000;
constexpr std::uint32_t kFactorWriteMs = 8000;

// A request of which only the status matters. A failure that the handset reports is not logged.
Result Tell(Phone& phone, Operation& operation, std::uint8_t subtype,
            std::span<const std::uint8_t> payload, std::uint32_t timeoutMs) {
  const Answer answer = phone.link.SendAndWaitSame({kType, subtype}, payload, timeoutMs);
  if (TellsFailure(answer.Payload())) return Result::WifiFailed;
  return operation.Finish(answer.Why());
}

Result TellWord(Phone& phone, Operation& operation, std::uint8_t subtype, std::uint32_t word,
                std::uint32_t timeoutMs) {
  std::array<std::uint8_t, 4> payload;
  PutU32(payload, 0, word);
  return Tell(phone, operation, subtype, payload, timeoutMs);
}

bool KnownRate(std::uint32_t rate) {
  constexpr std::array<std::uint8_t, 20> kRates{1,  2,  5,  6,  7,  9,  11, 12, 13, 18,
                                                19, 24, 26, 36, 39, 48, 52, 54, 58, 65};
  return std::binary_search(kRates.begin(), kRates.end(), rate);
}
bool AnyValue(std::uint32_t) { return true; }
bool KnownMode(std::uint32_t mode) { return mode <= 6; }
bool KnownLevel(std::uint32_t level) { return level >= 1 && level <= 5; }

struct Setting {
  std::uint32_t operation;
  std::uint8_t subtype;
  const char* logName;
  bool (*allows)(std::uint32_t value);
};

constexpr Setting kChannel{264, 3, "SetWifiChannel:", AnyValue};
constexpr Setting kDataRate{265, 4, "SetWifiDataRate:", KnownRate};
constexpr Setting kModulationMode{266, 5, "SetWifiModulationMode:", KnownMode};
constexpr Setting kPowerControlLevel{267, 6, "SetWifiPowerControlLevel:", KnownLevel};

Result Set(Phone& phone, const Setting& setting, std::uint32_t value) {
  Operation operation(phone, setting.operation);
  if (!setting.allows(value)) return Result::InvalidParam;
  operation.Log(setting.logName);
  return TellWord(phone, operation, setting.subtype, value, kSettingMs);
}

}  // namespace

Result WIFI_EnterEUTMode(Phone& phone, std::uint32_t enter) {
  Operation operation(phone, 261);
  operation.Log(enter ? "EnterWifiEUTMode:" : "LeaveWifiEUTMode:");
  return TellWord(phone, operation, 0, enter ? 1 : 0, kSettingMs);
}

// Reversed here and not in WIFI_LoadAddr: handsets in the field hold addresses saved this way, and
// stations expect to read them back reversed.
Result WIFI_SaveAddr(Phone& phone, const std::uint8_t* address) {
  Operation operation(phone, 262);
  if (!address) return Result::InvalidParam;
  operation.Log("SaveWifiAddr:");
  return Tell(phone, operation, 1, Reversed(address), kSettingMs);
}

Result WIFI_LoadAddr(Phone& phone, std::uint8_t* address) {
  Operation operation(phone, 263);
  if (!address) return Result::InvalidParam;
  operation.Log("LoadWifiAddr:");
  const Answer answer = phone.link.SendAndWaitSame({kType, 2}, {}, kQuickMs);
  if (answer) {
    const auto payload = answer.Payload();
    if (TellsFailure(payload) || payload.size() < kStatusBytes + kAddressBytes)
      return Result::WifiFailed;
    std::copy_n(payload.begin() + kStatusBytes, kAddressBytes, address);
  }
  return operation.Finish(answer.Why());
}

Result WIFI_SetChannel(Phone& phone, std::uint32_t channel) {
  constexpr std::uint32_t kMaxChannel = 13;
  constexpr std::uint32_t kMiddleChannel = 6;
  return Set(phone, kChannel, channel == 0 || channel > kMaxChannel ? kMiddleChannel : channel);
}

Result WIFI_SetDateRat(Phone& phone, std::uint32_t rate) { return Set(phone, kDataRate, rate); }

Result WIFI_SetMode(Phone& phone, std::uint32_t mode) { return Set(phone, kModulationMode, mode); }

Result WIFI_SetPCL(Phone& phone, std::uint32_t level) {
  return Set(phone, kPowerControlLevel, level);
}

Result WIFI_SetTxStatus(Phone& phone, std::uint32_t enable, std::uint32_t argument) {
  Operation operation(phone, 268);
  operation.Log(enable ? "EnableWifiTx:" : "DisableWifiTx:");
  // The transceiver's own order, whatever the handset's is.
  std::array<std::uint8_t, 8> payload;
  PutU32BigEndian(payload, 0, enable ? 1 : 0);
  PutU32BigEndian(payload, 4, argument);
  return Tell(phone, operation, 7, payload, kSettingMs);
}

Result WIFI_SetRxStatus(Phone& phone, std::uint32_t mode) {
  constexpr std::array<const char*, 3> kLogNames{
      "DisableWifiRx:", "EnableWifiRx:", "ClearWifiRxValue:"};
  Operation operation(phone, 269);
  const std::uint32_t known = std::min<std::uint32_t>(mode, 2);
  operation.Log(kLogNames[known]);
  return TellWord(phone, operation, 8, known, kQuickMs);
}

Result WIFI_ReadRxValue(Phone& phone, std::uint32_t* first, std::uint32_t* second) {
  Operation operation(phone, 270);
  if (!first || !second) return Result::InvalidParam;
  operation.Log("ReadRecPackage:");
  const Answer answer = phone.link.SendAndWaitSame({kType, 9}, {}, kQuickMs);
  if (TellsFailure(answer.Payload())) return Result::WifiFailed;
  // Without an answer the counts read 0.
  const auto words = FirstBytes<12>(answer.Payload());
  *first = GetU32(words, 4);
  *second = GetU32(words, 8);
  return operation.Finish(answer.Why());
}

Result WIFI_OperFactor(Phone& phone, std::uint32_t factorOperation, QV_WIFI_FACTOR* factor) {
  constexpr std::uint32_t kRead = 0;
  constexpr std::uint32_t kWrite = 1;
  constexpr std::uint32_t kSet = 2;
  constexpr std::uint8_t kFirstSubtype = 10;
  constexpr std::uint32_t kMaxIndex = 5;
  Operation operation(phone, 271);
  if (!factor) return Result::InvalidParam;

  if (factorOperation == kRead) {
    operation.Log("ReadWifiFactor:");
    const Answer answer = phone.link.SendAndWaitSame({kType, kFirstSubtype}, {}, kQuickMs);
    if (TellsFailure(answer.Payload())) return Result::WifiFailed;
    if (answer) {
      const auto words = FirstBytes<12>(answer.Payload());
      *factor = {0, GetU32(words, 4), GetU32(words, 8)};
    }
    return operation.Finish(answer.Why());
  }

  // Refused as the handset itself would refuse it, and not logged.
  if (factorOperation != kWrite && factorOperation != kSet) return Result::WifiFailed;
  if (factor->index < 1 || factor->index > kMaxIndex) return Result::WifiFailed;
  operation.Log(factorOperation == kWrite ? "WriteWifiFactor:" : "SetWifiFactor:");
  // The transceiver's own order, though it is read in the handset's.
  std::array<std::uint8_t, 12> payload{};
  PutU32BigEndian(payload, 4, factor->index);
  PutU32BigEndian(payload, 8, factor->value);
  return Tell(phone, operation, static_cast<std::uint8_t>(kFirstSubtype + factorOperation), payload,
              kFactorWriteMs);
}

Result WIFI_SetCrystalCap(Phone& phone, const std::uint8_t* capacitance) {
  Operation operation(phone, 272);
  if (!capacitance) return Result::InvalidParam;
  operation.Log("SetCrystalCap:");
  return Tell(phone, operation, 13, {capacitance, 2}, kSettingMs);
}

}  // namespace merovane::commands
