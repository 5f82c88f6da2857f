// The handset's calibration items, and the commands that every export of one runs.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "commands/calibration/data_command.h"
#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands {

// The columns of calibration_items.def, which says what they mean.
enum class ItemNames { Data, Table, Own };
enum class ItemBand { NoBand, PerBand, AnyBand };
enum class ItemArgument { Value, Array, Counted, Imei, Commit, Either };

struct ItemOffset {
  std::uint16_t fixed;
  std::uint16_t perIndex;
  std::uint16_t indexMask;
};

struct CalibrationItem {
  ItemNames names;
  std::string_view name;
  std::uint16_t item;
  ItemOffset offset;
  std::uint16_t bytes;
  Element element;
  ItemBand band;
  ItemArgument argument;
  // Reading and writing in RAM, then in flash.
  std::array<std::int16_t, 4> operations;

  // none, 0 for no id, or the id.
  constexpr std::int16_t Operation(Storage storage, bool writes) const {
    return operations[2 * static_cast<std::size_t>(storage) + (writes ? 1 : 0)];
  }
};

namespace items {

inline constexpr std::int16_t none = -1;
constexpr ItemOffset At(std::uint16_t offset) { return {offset, 0, 0}; }
constexpr ItemOffset Index(std::uint16_t perIndex) { return {0, perIndex, 0xFFFF}; }
inline constexpr ItemOffset LowByte{0, 1, 0xFF};

#define CALIBRATION_ITEM(names, name, item, offset, bytes, element, band, argument, r, w, rf, wf) \
  inline constexpr CalibrationItem name{ItemNames::names,                                         \
                                        #name,                                                    \
                                        item,                                                     \
                                        offset,                                                   \
                                        bytes,                                                    \
                                        Element::element,                                         \
                                        ItemBand::band,                                           \
                                        ItemArgument::argument,                                   \
                                        {r, w, rf, wf}};
#include "commands/calibration/calibration_items.def"
#undef CALIBRATION_ITEM

}  // namespace items

inline constexpr std::array kCalibrationItems{
#define CALIBRATION_ITEM(names, name, ...) &items::name,
#include "commands/calibration/calibration_items.def"
#undef CALIBRATION_ITEM
};

// What the caller of an export gives besides the data, as far as the item asks for it.
struct ItemSelection {
  std::uint32_t band = 0;
  std::uint16_t index = 0;
  std::uint32_t count = 0;  // of elements
};

bool IsBand(std::uint32_t band);

// `data` holds the item's elements (the selected count of a counted item) in this machine's byte
// order, unaligned as it may be.
Result ReadItem(Phone& phone, const CalibrationItem& item, Storage storage,
                const ItemSelection& selection, void* data);
Result WriteItem(Phone& phone, const CalibrationItem& item, Storage storage,
                 const ItemSelection& selection, const void* data);
// Reads when `read` is not 0, else writes; in flash when `flash` is not 0, else in RAM.
Result TransferItem(Phone& phone, const CalibrationItem& item, std::uint32_t read,
                    std::uint32_t flash, std::uint16_t band, void* data);
Result ReadImeiItem(Phone& phone, const CalibrationItem& item, Storage storage, char* text);
Result WriteImeiItem(Phone& phone, const CalibrationItem& item, Storage storage, const char* text);
Result CommitItem(Phone& phone, const CalibrationItem& item, Storage storage,
                  std::uint32_t timeoutMs);

}  // namespace merovane::commands
