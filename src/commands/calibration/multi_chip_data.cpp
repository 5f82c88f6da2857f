#include "commands/calibration/multi_chip_data.h"

#include <array>
#include <utility>

#include "commands/calibration/calibration_items.h"
#include "declared/calibration_items.h"

namespace merovane::commands {
namespace {

enum class FactorBand { Current, Record };

struct FactorItem {
  std::uint16_t item;
  Storage storage;
  FactorBand band;
};

// In the order of MultiChipFactor.
constexpr std::array<FactorItem, kMultiChipFactors> kFactorItems{{
    {items::APC_RF_ramppwr_step_factor.item, Storage::Ram, FactorBand::Current},
    {items::APC_RF_ramppwr_step_factor_8Psk.item, Storage::Flash, FactorBand::Record},
    {items::APC_RF_ramppwr_step_factor_8Psk.item, Storage::Ram, FactorBand::Record},
    {items::TxGain_8PSK.item, Storage::Flash, FactorBand::Record},
    {items::TxGain_8PSK.item, Storage::Ram, FactorBand::Record},
}};

struct RampPair {
  DataAddress first;
  DataAddress second;
};

RampPair PairOf(Storage storage, std::uint32_t flag, std::uint32_t band) {
  const auto bandWord = static_cast<std::uint16_t>(band);
  const auto [first, second] =
      flag ? std::pair{items::RampTableConstUp.item, items::RampUpParamNum.item}
           : std::pair{items::RampTable.item, items::RampTableConstDown.item};
  return {{storage, bandWord, first, 0}, {storage, bandWord, second, 0}};
}

// Levels count from 5 in GSM and GSM850.
std::uint16_t LevelBase(std::uint32_t band) {
  return band == QV_BAND_GSM || band == QV_BAND_GSM850 ? 5 : 0;
}

}  // namespace

Result SetMultiChipFactor(Operation& operation, MultiChipFactor factor, const QV_POWER_STEP& step) {
  const FactorItem& item = kFactorItems[static_cast<std::size_t>(factor)];
  CalibrationState& state = operation.phone.calibration;
  const WrittenFactor wanted{step.third, step.fourth, step.second};
  auto& last = state.lastFactors[static_cast<std::size_t>(factor)];
  if (last == wanted) return operation.Finish(Result::Success);

  const std::uint32_t offset = (wanted.index << 4) + wanted.level - LevelBase(step.first);
  const auto band =
      item.band == FactorBand::Record ? static_cast<std::uint16_t>(step.first) : state.currentBand;
  const Result result =
      WriteWord(operation.link, {item.storage, band, item.item, static_cast<std::uint16_t>(offset)},
                wanted.value);
  if (Succeeded(result)) last = wanted;
  return operation.Finish(result);
}

Result WriteMultiChipRamp(Operation& operation, Storage storage, std::uint32_t flag,
                          std::span<const std::uint16_t, kRampPoints> first,
                          std::span<const std::uint16_t, kRampPoints> second, std::uint32_t band) {
  const RampPair pair = PairOf(storage, flag, band);
  Result result = WriteData(operation.link, pair.first, BytesOf(first), Element::U16);
  if (Succeeded(result)) {
    result = WriteData(operation.link, pair.second, BytesOf(second), Element::U16);
  }
  return operation.Finish(result);
}

Result ReadMultiChipRamp(Operation& operation, Storage storage, std::uint32_t flag,
                         std::span<std::uint16_t, kRampPoints> first,
                         std::span<std::uint16_t, kRampPoints> second, std::uint32_t band) {
  const RampPair pair = PairOf(storage, flag, band);
  Result result = ReadData(operation.link, pair.first, BytesOf(first), Element::U16);
  if (Succeeded(result)) {
    result = ReadData(operation.link, pair.second, BytesOf(second), Element::U16);
  }
  return operation.Finish(result);
}

}  // namespace merovane::commands
