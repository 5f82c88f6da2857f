// Words that tell which chip the handset has.
#pragma once

#include <cstdint>

#include "commands/operation.h"
#include "link/result.h"

namespace merovane::commands {

inline constexpr std::uint8_t kIdentificationType = 93;
inline constexpr FrameId kChipId{kIdentificationType, 0};
inline constexpr FrameId kChipType{kIdentificationType, 1};

Result ReadIdentificationWord(Operation& operation, FrameId id, std::uint32_t& word);

}  // namespace merovane::commands
