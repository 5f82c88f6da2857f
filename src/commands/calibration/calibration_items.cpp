#include "commands/calibration/calibration_items.h"

#include <algorithm>
#include <optional>
#include <string>

#include "commands/imei.h"
#include "commands/operation.h"

namespace merovane::commands {
namespace {

constexpr std::uint32_t kWriteImeiTimeoutMs = 3000;
constexpr std::uint32_t kMaxOffset = 0xFFFF;

std::string LogName(const CalibrationItem& item, Storage storage, bool writes) {
  const std::string place = storage == Storage::Ram ? "Ram" : "Flash";
  const std::string name(item.name);
  switch (item.names) {
    case ItemNames::Data:
      return (writes ? "WriteData_" : "ReadData_") + place + '_' + name + ':';
    case ItemNames::Table:
      return (writes ? "Set" : "Read") + name + '_' + place + ':';
    case ItemNames::Own:
      break;
  }
  return name + ':';
}

// Begun before the arguments are checked, logged behind that.
class ItemOperation {
 public:
  ItemOperation(Phone& phone, const CalibrationItem& item, Storage storage, bool writes)
      : operation_(Begin(phone, item.Operation(storage, writes))),
        item_(item),
        storage_(storage),
        writes_(writes) {}

  void Log() { operation_.Log(LogName(item_, storage_, writes_)); }
  [[nodiscard]] Result Finish(Result result) { return operation_.Finish(result); }

 private:
  static Operation Begin(Phone& phone, std::int16_t id) {
    return id > 0 ? Operation(phone, static_cast<std::uint32_t>(id)) : Operation(phone);
  }

  Operation operation_;
  const CalibrationItem& item_;
  Storage storage_;
  bool writes_;
};

struct Range {
  DataAddress address;
  std::size_t bytes;
};

// Nothing when the selection is refused.
std::optional<Range> Select(const CalibrationItem& item, Storage storage,
                            const ItemSelection& selection) {
  if (item.band == ItemBand::PerBand && !IsBand(selection.band)) return std::nullopt;
  const std::uint32_t offset =
      item.offset.fixed +
      item.offset.perIndex * static_cast<std::uint32_t>(selection.index & item.offset.indexMask);
  if (offset > kMaxOffset) return std::nullopt;
  std::size_t bytes = item.bytes;
  if (item.argument == ItemArgument::Counted) {
    if (selection.count < 1 || selection.count > kMaxDataBytes / 2) return std::nullopt;
    bytes = std::size_t{2} * selection.count;
  }
  const auto band = static_cast<std::uint16_t>(item.band == ItemBand::NoBand ? 0 : selection.band);
  return Range{{storage, band, item.item, static_cast<std::uint16_t>(offset)}, bytes};
}

}  // namespace

bool IsBand(std::uint32_t band) { return band == 0 || band == 1 || band == 3 || band == 4; }

Result ReadItem(Phone& phone, const CalibrationItem& item, Storage storage,
                const ItemSelection& selection, void* data) {
  ItemOperation operation(phone, item, storage, false);
  const auto range = Select(item, storage, selection);
  if (!data || !range) return Result::InvalidParam;
  operation.Log();
  return operation.Finish(ReadData(phone.link, range->address,
                                   {static_cast<std::uint8_t*>(data), range->bytes}, item.element));
}

Result WriteItem(Phone& phone, const CalibrationItem& item, Storage storage,
                 const ItemSelection& selection, const void* data) {
  ItemOperation operation(phone, item, storage, true);
  const auto range = Select(item, storage, selection);
  if (!data || !range) return Result::InvalidParam;
  operation.Log();
  return operation.Finish(WriteData(phone.link, range->address,
                                    {static_cast<const std::uint8_t*>(data), range->bytes},
                                    item.element));
}

Result TransferItem(Phone& phone, const CalibrationItem& item, std::uint32_t read,
                    std::uint32_t flash, std::uint16_t band, void* data) {
  const Storage storage = flash ? Storage::Flash : Storage::Ram;
  return read ? ReadItem(phone, item, storage, {.band = band}, data)
              : WriteItem(phone, item, storage, {.band = band}, data);
}

Result ReadImeiItem(Phone& phone, const CalibrationItem& item, Storage storage, char* text) {
  ItemOperation operation(phone, item, storage, false);
  if (!text) return Result::InvalidParam;
  operation.Log();
  PackedImei packed{};
  const Result result =
      ReadData(phone.link, {storage, 0, item.item, item.offset.fixed}, packed, item.element);
  if (Succeeded(result)) std::ranges::copy(DecimalImeiText(packed), text);
  return operation.Finish(result);
}

Result WriteImeiItem(Phone& phone, const CalibrationItem& item, Storage storage, const char* text) {
  ItemOperation operation(phone, item, storage, true);
  const auto packed = text ? PackImei(text) : std::nullopt;
  if (!packed) return Result::InvalidParam;
  operation.Log();
  return operation.Finish(WriteData(phone.link, {storage, 0, item.item, item.offset.fixed}, *packed,
                                    item.element, kWriteImeiTimeoutMs));
}

Result CommitItem(Phone& phone, const CalibrationItem& item, Storage storage,
                  std::uint32_t timeoutMs) {
  ItemOperation operation(phone, item, storage, true);
  operation.Log();
  return operation.Finish(WriteData(phone.link, {storage, 0, item.item, item.offset.fixed}, {},
                                    item.element, timeoutMs));
}

}  // namespace merovane::commands
