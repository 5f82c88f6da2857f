// Words that say what a handset is made of, and the general ten-word exchange.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"
#include "merovane/types.h"

namespace merovane::commands {

Result GetChipID(Phone& phone, std::uint32_t* id);
Result GetChipType(Phone& phone, std::uint32_t* type);
Result GetLcdIcDriverID(Phone& phone, std::uint32_t secondLcd, std::uint8_t* id,
                        std::int32_t capacity, std::uint32_t* length);
Result GetFlashInfo(Phone& phone, QV_FLASH_INFO* info);
Result GetMSVersion(Phone& phone, char* version, std::uint32_t capacity);

Result Send7310KCommand(Phone& phone, std::uint8_t command, const std::uint16_t* words,
                        std::uint16_t* answeredWords, std::uint32_t timeoutMs);
Result Recv7310KCommand(Phone& phone, std::uint8_t command, std::uint16_t* answeredWords,
                        std::uint32_t timeoutMs);

}  // namespace merovane::commands
