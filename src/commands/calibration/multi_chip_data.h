// Power factors and ramps, which multi-chip handsets take as calibration data.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "commands/calibration/calibration_items.h"
#include "commands/calibration/data_command.h"
#include "commands/phone.h"
#include "link/result.h"
#include "merovane/types.h"

namespace merovane::commands {

enum class FactorBand { Current, Record };

struct MultiChipFactor {
  std::string_view logName;
  std::uint32_t operation;
  std::uint16_t item;
  Storage storage;
  FactorBand band;
  std::size_t cache;  // index of its last value
};

struct MultiChipRamp {
  std::string_view writeLogName;
  std::uint32_t writeOperation;
  std::string_view readLogName;
  std::uint32_t readOperation;
  Storage storage;
};

namespace multi_chip {

enum FactorCache : std::size_t {
#define MULTI_CHIP_FACTOR(name, operation, itemName, storage, band) k##name,
#define MULTI_CHIP_RAMP(storage, write, read)
#include "commands/calibration/multi_chip_data.def"
#undef MULTI_CHIP_FACTOR
#undef MULTI_CHIP_RAMP
};

#define MULTI_CHIP_FACTOR(name, operation, itemName, storage, band)                               \
  inline constexpr MultiChipFactor name{#name ":",        operation,        items::itemName.item, \
                                        Storage::storage, FactorBand::band, k##name};
#define MULTI_CHIP_RAMP(storage, write, read)                                             \
  inline constexpr MultiChipRamp Ramp_##storage{"RampSetting_" #storage "_MChip:", write, \
                                                "ReadRamp_" #storage "_MChip:", read,     \
                                                Storage::storage};
#include "commands/calibration/multi_chip_data.def"
#undef MULTI_CHIP_FACTOR
#undef MULTI_CHIP_RAMP

}  // namespace multi_chip

// Writes the record's third field, unless value, index and level are those that this command wrote
// last, whatever the band.
Result SetMultiChipFactor(Phone& phone, const MultiChipFactor& factor, const QV_POWER_STEP* step);

// Two tables of 16 points each. `flag` chooses the pair.
Result WriteMultiChipRamp(Phone& phone, const MultiChipRamp& ramp, std::uint32_t flag,
                          const std::uint16_t* first, const std::uint16_t* second,
                          std::uint32_t band);
Result ReadMultiChipRamp(Phone& phone, const MultiChipRamp& ramp, std::uint32_t flag,
                         std::uint16_t* first, std::uint16_t* second, std::uint32_t band);

}  // namespace merovane::commands
