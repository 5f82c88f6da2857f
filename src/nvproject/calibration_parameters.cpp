#include "nvproject/calibration_parameters.h"

#include <algorithm>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {
namespace {

constexpr std::array kAllBands = {Band::Gsm, Band::Dcs, Band::Pcs, Band::Gsm850};

template <class Enum>
constexpr std::size_t Number(Enum value) {
  return static_cast<std::size_t>(value);
}

std::string RootPath(Root root, bool areoSpelling) {
  const Structure& structure = kStructures[Number(root)];
  const bool areo = root == Root::AfcStructure && areoSpelling;
  std::string path = structure.outer ? RootPath(*structure.outer, areoSpelling) : std::string();
  return path.append(areo ? kAfcStructureAreo : structure.name);
}

std::string BandPath(Band band) {
  return RootPath(Root::DspUse, false).append(kBandStructures[Number(band)]);
}

}  // namespace

bool HasAreoSpelling(ItemStore& items) {
  const ValueParameter& probe = kCommonValues[Number(CommonValue::SlopeLength)];
  return items.Find(RootPath(probe.root, true).append(probe.path)) != kNoItem;
}

CalibrationParameters::CalibrationParameters(ItemStore& items, bool areoSpelling) : items_(&items) {
  for (const Band band : kAllBands) {
    BandParameters parameters{{}, {ItemValue(BandPath(band).append(kMaxGainIndex))}};
    for (const ArrayParameter& array : kBandArrays) {
      parameters.arrays.push_back(MakeArray(BandPath(band), array));
    }
    bands_.push_back(std::move(parameters));
  }
  for (const CommonArrayParameter& parameter : kCommonArrays) {
    arrays_.push_back(MakeArray(RootPath(parameter.root, areoSpelling), parameter.array));
  }
  for (const ValueParameter& parameter : kCommonValues) {
    values_.push_back({ItemValue(RootPath(parameter.root, areoSpelling).append(parameter.path))});
  }
}

CalibrationParameters::Array CalibrationParameters::MakeArray(
    std::string structure, const ArrayParameter& parameter) const {
  return {ItemArray(structure.append(parameter.path), parameter.count, parameter.first),
          std::vector<std::int16_t>(parameter.count)};
}

void CalibrationParameters::LoadAgc(Band band) {
  LoadBands(band, BandArray::AgcControlWord);
  for (const Band each : kAllBands) {
    Read(Of(each).gainIndex, Reading::AlwaysHexadecimal, 0);
    Load(each, BandArray::TxBoundary);
    Load(each, BandArray::RxBoundary);
  }
}

void CalibrationParameters::LoadApc(Band band) {
  for (const BandArray array :
       {BandArray::RampUpStage0, BandArray::RampUpStage1, BandArray::RampDownStage0,
        BandArray::RampDownStage1, BandArray::TxBoundary, BandArray::RxBoundary,
        BandArray::StepFactor}) {
    LoadBands(band, array);
  }
}

void CalibrationParameters::LoadCharging() {
  for (auto value = CommonValue::ChargeEndVoltage; value <= CommonValue::VoltageWarning;
       value = static_cast<CommonValue>(Number(value) + 1)) {
    Load(value);
  }
  Array& table = arrays_[Number(CommonArray::AdcVoltage)];
  table.items.Read(*items_, table.values);
}

void CalibrationParameters::LoadAfcStructure() {
  for (const CommonValue value : {CommonValue::SlopeLength, CommonValue::Cdac, CommonValue::Cafc}) {
    Load(value);
  }
  for (const CommonArray array :
       {CommonArray::AfcRange, CommonArray::SlopeValue, CommonArray::SlopeReciprocal}) {
    arrays_[Number(array)].items.Read(*items_, arrays_[Number(array)].values);
  }
}

void CalibrationParameters::LoadAdcPoints() {
  Load(CommonValue::Adc0);
  Load(CommonValue::Battery0);
  // The second of each pair is an element behind the first and repeats it when it is missing.
  Read(values_[Number(CommonValue::Adc1)], Reading::ByPrefix, Cached(CommonValue::Adc0));
  Read(values_[Number(CommonValue::Battery1)], Reading::ByPrefix, Cached(CommonValue::Battery0));
}

void CalibrationParameters::Load(CommonValue value) {
  Read(values_[Number(value)], kCommonValues[Number(value)].reading, 0);
}

void CalibrationParameters::Load(Band band, BandArray array) {
  Array& target = Of(band).arrays[Number(array)];
  target.items.Read(*items_, target.values);
}

void CalibrationParameters::LoadBands(Band band, BandArray array) {
  for (const Band each : kAllBands) {
    if (each != Band::Pcs || band == Band::Pcs) Load(each, array);
  }
}

void CalibrationParameters::Read(Value& value, Reading reading, std::uint32_t missing) {
  const auto content = value.item.Read(*items_);
  if (!content) {
    value.value = missing;
  } else {
    value.value = static_cast<std::uint32_t>(
        reading == Reading::ByPrefix ? ContentValue(*content) : ParseNumber(*content, 16));
  }
}

std::span<const std::int16_t> CalibrationParameters::Cached(Band band, BandArray array) const {
  return bands_[Number(band)].arrays[Number(array)].values;
}

std::span<const std::int16_t> CalibrationParameters::Cached(CommonArray array) const {
  return arrays_[Number(array)].values;
}

std::uint32_t CalibrationParameters::Cached(CommonValue value) const {
  return values_[Number(value)].value;
}

std::uint16_t CalibrationParameters::CachedGainIndex(Band band) const {
  return static_cast<std::uint16_t>(bands_[Number(band)].gainIndex.value);
}

void CalibrationParameters::Write(Band band, BandArray array,
                                  std::span<const std::int16_t> values) {
  Array& target = Of(band).arrays[Number(array)];
  target.values.assign(values.begin(), values.end());
  target.items.Write(*items_, target.values);
}

void CalibrationParameters::Write(CommonArray array, std::span<const std::int16_t> values) {
  Array& target = arrays_[Number(array)];
  target.values.assign(values.begin(), values.end());
  target.items.Write(*items_, target.values);
}

void CalibrationParameters::Write(CommonValue value, std::uint32_t number) {
  Value& target = values_[Number(value)];
  target.value = number;
  target.item.Write(*items_, HexText(kCommonValues[Number(value)].form, number));
}

void CalibrationParameters::WriteGainIndex(Band band, std::uint16_t gainIndex) {
  Of(band).gainIndex.value = gainIndex;
  for (const Band each : kAllBands) {
    if (each == Band::Pcs && band != Band::Pcs) continue;
    Of(each).gainIndex.item.Write(*items_, HexText(HexForm::UpperLower, CachedGainIndex(each)));
  }
}

}  // namespace merovane::nvproject
