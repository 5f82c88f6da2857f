// The handset's two serial numbers, in either of their layouts, and its GUID.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands {

Result ReadSN(Phone& phone, std::uint8_t* serialNumber, std::uint32_t capacity);
Result ReadSN2(Phone& phone, std::uint8_t* serialNumber, std::uint32_t capacity);
// All else that the layout holds is written back as it was read. Nothing is written after a read
// that failed or came short.
Result WriteSN(Phone& phone, const std::uint8_t* serialNumber, std::uint32_t length);
Result WriteSN2(Phone& phone, const std::uint8_t* serialNumber, std::uint32_t length);
Result ReadGuid(Phone& phone, std::uint8_t* guid);

}  // namespace merovane::commands
