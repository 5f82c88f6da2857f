// The WiFi transceiver as equipment under test.
#pragma once

#include <cstdint>

#include "commands/operation.h"
#include "link/result.h"

namespace merovane::commands {

// What one word sets; the number is the request's subtype.
enum class WifiSetting : std::uint8_t {
  EutMode = 0,
  Channel = 3,
  DataRate = 4,
  ModulationMode = 5,
  PowerControlLevel = 6,
};
Result SetWifi(Operation& operation, WifiSetting setting, std::uint32_t value);

}  // namespace merovane::commands
