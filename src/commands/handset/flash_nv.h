// Items of the handset's storage, by their ids: production flash items and NV items. Their data is
// never converted.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands {

Result ReadFlash(Phone& phone, std::uint16_t item, std::uint8_t* data, std::int32_t length,
                 std::uint32_t* dataLength, std::uint32_t timeoutMs);
Result WriteFlash(Phone& phone, std::uint16_t item, const std::uint8_t* data, std::uint32_t length,
                  std::uint32_t timeoutMs);
Result EraseFlash(Phone& phone, std::uint32_t timeoutMs);

Result ReadNv(Phone& phone, std::uint16_t item, std::uint8_t* data, std::uint32_t capacity,
              std::uint32_t* dataLength, std::uint32_t timeoutMs);
Result WriteNv(Phone& phone, std::uint16_t item, const std::uint8_t* data, std::uint32_t length);
// A part of an item. Its range is checked against the answer, which counts the item id too.
Result ReadNvFromHandset(Phone& phone, std::uint16_t item, std::uint32_t offset,
                         std::uint32_t length, std::uint8_t* data, std::uint32_t capacity,
                         std::uint32_t* dataLength);

}  // namespace merovane::commands
