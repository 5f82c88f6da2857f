// The handset's two serial numbers, in whichever layout it keeps them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "commands/operation.h"
#include "link/result.h"

namespace merovane::commands {

// Where a number stands in production flash item 0 and in the production block.
struct SerialNumberField {
  std::size_t itemOffset;
  std::size_t blockOffset;
};
inline constexpr SerialNumberField kFirstSerialNumber{8, 4};
inline constexpr SerialNumberField kSecondSerialNumber{168, 28};

Result ReadSerialNumber(Operation& operation, SerialNumberField field,
                        std::span<std::uint8_t> serialNumber);
Result WriteSerialNumber(Operation& operation, SerialNumberField field,
                         std::span<const std::uint8_t> serialNumber);

}  // namespace merovane::commands
