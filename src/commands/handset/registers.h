// The handset's memory-mapped registers.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands {

// The access width is a code: 0 bytes, 1 16-bit units, others 32-bit units. Data is never
// converted.
Result ReadRegister(Phone& phone, std::uint32_t accessWidth, std::uint32_t address,
                    std::uint8_t* data, std::uint32_t count);
Result WriteRegister(Phone& phone, std::uint32_t accessWidth, std::uint32_t address,
                     const std::uint8_t* data, std::uint32_t count);

}  // namespace merovane::commands
