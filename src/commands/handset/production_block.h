// Blocks of production data that travel with a checksum, and what the handset counts in them.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands {

Result FastWriteProduct(Phone& phone, const std::uint8_t* block, std::uint32_t length);
Result FastReadProduct(Phone& phone, std::uint8_t* block, std::uint32_t capacity,
                       std::uint32_t* length);
Result FastReadVerSion(Phone& phone, std::uint8_t* block, std::uint32_t capacity,
                       std::uint32_t* length);
Result FastReaIMEICount(Phone& phone, std::uint32_t* count);

}  // namespace merovane::commands
