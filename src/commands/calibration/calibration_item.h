// What is known of one item of the handset's calibration data. The items themselves are declared,
// with the exports that read and write them, in api/exports/41_calibration_data.api.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "commands/calibration/data_command.h"

namespace merovane::commands {

enum class ItemData { Value, Array, Counted, Imei, Commit };

// An exported function, without its prefix.
struct ItemExport {
  std::string_view name;        // empty where there is no such export
  std::int32_t operation = -1;  // negative: none is recorded
};

struct CalibrationItem {
  std::string_view name;
  std::uint16_t item;
  std::uint16_t offset;    // in elements, and
  std::uint16_t perIndex;  // as many more for each step of the caller's index
  std::uint16_t bytes;     // 0 when it has no data or the caller says how many
  Element element;
  ItemData data;
  bool perBand;
  bool either;  // one export reads or writes, in RAM or flash, as its arguments say
  // Reading and writing in RAM, then in flash.
  std::array<ItemExport, 4> exports;

  constexpr const ItemExport& Export(Storage storage, bool writes) const {
    return exports[2 * static_cast<std::size_t>(storage) + (writes ? 1 : 0)];
  }
};

}  // namespace merovane::commands
