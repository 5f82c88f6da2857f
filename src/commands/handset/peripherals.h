// Peripherals that are switched or measured.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands {

Result LedOn(Phone& phone, std::uint32_t on);
Result VibrationOn(Phone& phone, std::uint32_t on);
Result LcdOn(Phone& phone, std::uint32_t on);
Result keyLightOn(Phone& phone, std::uint32_t on);
Result CameraOn(Phone& phone, std::uint32_t on);

Result ADCCalibration(Phone& phone, std::uint8_t channel, std::uint8_t* value,
                      std::uint32_t timeoutMs);
Result ReadAdcValue(Phone& phone, std::uint8_t channel, std::uint16_t* value,
                    std::uint8_t* thirdByte, std::uint8_t* fourthByte, std::uint32_t timeoutMs);
Result ReadPhoneVolt(Phone& phone, std::uint32_t* voltage);
Result PressKeyboard(Phone& phone, std::uint32_t key);

}  // namespace merovane::commands
