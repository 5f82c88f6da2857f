// Peripherals that are switched on and off.
#pragma once

#include <cstdint>

#include "commands/operation.h"
#include "link/result.h"

namespace merovane::commands {

// The subtypes that switch a peripheral. They are the handset's codes: LED and LCD go on together,
// LED and vibrator go off together.
struct Switch {
  std::uint8_t on;
  std::uint8_t off;
};
inline constexpr Switch kLed{3, 0};
inline constexpr Switch kVibrator{4, 0};
inline constexpr Switch kLcd{3, 8};
inline constexpr Switch kKeyLight{16, 17};
inline constexpr Switch kCamera{18, 19};

Result Turn(Operation& operation, Switch peripheral, bool on);

}  // namespace merovane::commands
