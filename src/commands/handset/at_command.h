// AT commands over the diagnostic link.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"
#include "merovane/types.h"

namespace merovane::commands {

Result SendAtCommand(Phone& phone, const char* command, std::uint32_t commandLength,
                     std::uint32_t wait, char* answer, std::uint32_t capacity,
                     std::uint32_t* answerLength, std::uint32_t timeoutMs);
Result SendAT(Phone& phone, const char* command, std::uint32_t length, char* answer,
              std::uint32_t capacity, std::uint32_t* answerLength, std::uint32_t timeoutMs);
Result GetCurrCellInfo(Phone& phone, QV_CELL_INFO* cell);

}  // namespace merovane::commands
