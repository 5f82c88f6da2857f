#include "commands/calibration/multi_chip_data.h"

#include <span>
#include <utility>

#include "commands/calibration/calibration_items.h"
#include "commands/operation.h"

namespace merovane::commands {
namespace {

constexpr std::size_t kRampBytes = 32;

struct RampPair {
  DataAddress first;
  DataAddress second;
};

RampPair PairOf(const MultiChipRamp& ramp, std::uint32_t flag, std::uint32_t band) {
  const auto bandWord = static_cast<std::uint16_t>(band);
  const auto [first, second] =
      flag ? std::pair{items::RampTableConstUp.item, items::RampUpParamNum.item}
           : std::pair{items::RampTable.item, items::RampTableConstDown.item};
  return {{ramp.storage, bandWord, first, 0}, {ramp.storage, bandWord, second, 0}};
}

// Levels count from 5 in the bands 0 and 4.
std::uint16_t LevelBase(std::uint32_t band) { return band == 0 || band == 4 ? 5 : 0; }

}  // namespace

Result SetMultiChipFactor(Phone& phone, const MultiChipFactor& factor, const QV_POWER_STEP* step) {
  Operation operation(phone, factor.operation);
  if (!step || (factor.band == FactorBand::Record && !IsBand(step->first))) {
    return Result::InvalidParam;
  }
  operation.Log(factor.logName);
  const WrittenFactor wanted{step->third, step->fourth, step->second};
  auto& last = phone.calibration.lastFactors[factor.cache];
  if (last == wanted) return operation.Finish(Result::Success);

  const std::uint32_t offset = (wanted.index << 4) + wanted.level - LevelBase(step->first);
  const auto band = factor.band == FactorBand::Record ? static_cast<std::uint16_t>(step->first)
                                                      : phone.calibration.currentBand;
  const Result result =
      WriteWord(phone.link, {factor.storage, band, factor.item, static_cast<std::uint16_t>(offset)},
                wanted.value);
  if (Succeeded(result)) last = wanted;
  return operation.Finish(result);
}

Result WriteMultiChipRamp(Phone& phone, const MultiChipRamp& ramp, std::uint32_t flag,
                          const std::uint16_t* first, const std::uint16_t* second,
                          std::uint32_t band) {
  Operation operation(phone, ramp.writeOperation);
  if (!first || !second || !IsBand(band)) return Result::InvalidParam;
  operation.Log(ramp.writeLogName);
  const RampPair pair = PairOf(ramp, flag, band);
  const auto write = [&](const DataAddress& address, const std::uint16_t* table) {
    return WriteData(phone.link, address,
                     {reinterpret_cast<const std::uint8_t*>(table), kRampBytes}, Element::U16);
  };
  Result result = write(pair.first, first);
  if (Succeeded(result)) result = write(pair.second, second);
  return operation.Finish(result);
}

Result ReadMultiChipRamp(Phone& phone, const MultiChipRamp& ramp, std::uint32_t flag,
                         std::uint16_t* first, std::uint16_t* second, std::uint32_t band) {
  Operation operation(phone, ramp.readOperation);
  if (!first || !second || !IsBand(band)) return Result::InvalidParam;
  operation.Log(ramp.readLogName);
  const RampPair pair = PairOf(ramp, flag, band);
  const auto read = [&](const DataAddress& address, std::uint16_t* table) {
    return ReadData(phone.link, address, {reinterpret_cast<std::uint8_t*>(table), kRampBytes},
                    Element::U16);
  };
  Result result = read(pair.first, first);
  if (Succeeded(result)) result = read(pair.second, second);
  return operation.Finish(result);
}

}  // namespace merovane::commands
