// The GPS receiver.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands {

Result GpsOpen(Phone& phone, std::uint32_t open);
Result GpsWriteNv(Phone& phone, const std::uint8_t* block);
Result GpsReadNv(Phone& phone, std::uint8_t* block);

}  // namespace merovane::commands
