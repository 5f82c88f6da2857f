// The Bluetooth transceiver as equipment under test.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands {

Result EnterEUTMode(Phone& phone, std::uint32_t enter);
Result SaveBTAddr(Phone& phone, const std::uint8_t* address);
Result LoadBTAddr(Phone& phone, std::uint8_t* address);
Result StartBtRadioTest(Phone& phone, std::uint32_t start, const std::uint32_t* words);
Result StartBtAFC(Phone& phone, std::uint32_t start, std::uint32_t channel);
Result SetBtDacValue(Phone& phone, std::uint32_t value);
Result SaveBtDacValue(Phone& phone, std::uint32_t value);
Result LoadBtDacValue(Phone& phone, std::uint32_t* value);

}  // namespace merovane::commands
