// Power factors and ramps, which multi-chip handsets take as calibration data.
#pragma once

#include <cstdint>
#include <span>

#include "commands/calibration/calibration_state.h"
#include "commands/calibration/data_command.h"
#include "commands/operation.h"
#include "link/result.h"
#include "merovane/types.h"

namespace merovane::commands {

inline constexpr std::size_t kRampPoints = 16;

// Writes the record's third field, unless value, index and level are those that this factor was
// last given, whatever the band.
Result SetMultiChipFactor(Operation& operation, MultiChipFactor factor, const QV_POWER_STEP& step);

// Two tables. `flag` chooses the pair of items.
Result WriteMultiChipRamp(Operation& operation, Storage storage, std::uint32_t flag,
                          std::span<const std::uint16_t, kRampPoints> first,
                          std::span<const std::uint16_t, kRampPoints> second, std::uint32_t band);
Result ReadMultiChipRamp(Operation& operation, Storage storage, std::uint32_t flag,
                         std::span<std::uint16_t, kRampPoints> first,
                         std::span<std::uint16_t, kRampPoints> second, std::uint32_t band);

}  // namespace merovane::commands
