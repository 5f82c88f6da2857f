// Blocks of production data, which travel with a checksum.
#pragma once

#include <cstdint>
#include <span>

#include "commands/operation.h"
#include "link/result.h"

namespace merovane::commands {

inline constexpr std::uint8_t kProductType = 95;
inline constexpr std::uint8_t kVersionType = 96;

Result ReadBlock(Operation& operation, std::uint8_t type, std::span<std::uint8_t> block,
                 std::uint32_t& length);

}  // namespace merovane::commands
