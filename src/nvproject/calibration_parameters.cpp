#include "nvproject/calibration_parameters.h"

#include <array>
#include <string_view>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {
namespace {

template <class Enum>
constexpr std::size_t Number(Enum value) {
  return static_cast<std::size_t>(value);
}

constexpr std::array kGsmBands = {Band::Gsm, Band::Dcs, Band::Pcs, Band::Gsm850};

std::string BandPath(Band band) {
  constexpr std::array kNames = {"gsm", "dcs", "pcs", "gsm850", "td"};
  return std::string("calibration_param_T.rf_param_dsp_use.rf_") + kNames[Number(band)] +
         "_param_dsp_use.";
}

// The structures that the other parameters are in.
enum class Root { Calibration, RfCommon, AfcStructure, Charging };

std::string RootPath(Root root, bool areoSpelling) {
  constexpr std::string_view kRfCommon =
      "calibration_param_T.rf_param_dsp_use.rf_common_param_dsp_use.";
  switch (root) {
    case Root::Calibration:
      return "calibration_param_T.";
    case Root::RfCommon:
      return std::string(kRfCommon);
    case Root::AfcStructure:
      return std::string(kRfCommon).append(areoSpelling ? "areo2_RF_AFC_STRUCT."
                                                        : "aero2_RF_AFC_STRUCT.");
    case Root::Charging:
      return "production_param_T.CHR_PARAM_T.";
  }
  return {};
}

struct ArrayParameter {
  std::string_view path;
  std::size_t count;
  IndexNotation first = IndexNotation::Decimal;
};

// In the order of BandArray, below the band's structure.
constexpr std::array kBandArrays = {
    ArrayParameter{"rf_ramp_up_table_stage0.rf_ramp_up_table_stage0", 16},
    ArrayParameter{"rf_ramp_up_table_stage1.rf_ramp_up_table_stage1", 16},
    ArrayParameter{"rf_ramp_down_table_stage0.rf_ramp_down_table_stage0", 16},
    ArrayParameter{"rf_ramp_down_table_stage1.rf_ramp_down_table_stage1", 16},
    ArrayParameter{"TX_compensate_boundary_arfcn_index", 4},
    ArrayParameter{"rf_ramppwr_step_factor", 80},
    ArrayParameter{"RX_compensate_boundary_arfcn_index", 4},
    ArrayParameter{"RX_compensate_value", 5},
    ArrayParameter{"agc_ctrl_word", 91, IndexNotation::Hexadecimal},
};

constexpr std::string_view kMaxGainIndex = "max_rf_gain_index";

struct CommonArrayParameter {
  Root root;
  ArrayParameter array;
};

// In the order of CommonArray.
constexpr std::array kCommonArrays = {
    CommonArrayParameter{Root::AfcStructure, {"slope_struct.afc_range_arr", 16}},
    CommonArrayParameter{Root::AfcStructure, {"slope_struct.slope_value_arr", 16}},
    CommonArrayParameter{Root::AfcStructure, {"slope_struct.slope_value_reciprocal_arr", 16}},
    CommonArrayParameter{Root::Charging, {"adc_voltage_table", 16}},
};

struct ValueParameter {
  Root root;
  std::string_view path;
  HexForm form = HexForm::UpperUpper;  // in which it is written
  bool alwaysHexadecimal = false;      // when it is read
};

// In the order of CommonValue.
constexpr std::array kCommonValues = {
    ValueParameter{Root::Calibration, "cal_param_version", HexForm::UpperUpper, true},
    ValueParameter{Root::RfCommon, "afc_center", HexForm::LowerLower},
    ValueParameter{Root::RfCommon, "afc_slope_hz_per_6bits", HexForm::LowerLower},
    ValueParameter{Root::AfcStructure, "slope_length"},
    ValueParameter{Root::AfcStructure, "CDAC"},
    ValueParameter{Root::AfcStructure, "CAFC"},
    ValueParameter{Root::Calibration, "adc.adc[0]"},
    ValueParameter{Root::Calibration, "adc.adc[1]"},
    ValueParameter{Root::Calibration, "adc.battery[0]"},
    ValueParameter{Root::Calibration, "adc.battery[1]"},
    ValueParameter{Root::Charging, "charge_end_voltage"},
    ValueParameter{Root::Charging, "pulse_charge_voltage"},
    ValueParameter{Root::Charging, "recharge_voltage"},
    ValueParameter{Root::Charging, "switch_voltage"},
    ValueParameter{Root::Charging, "voltage_shutdown"},
    ValueParameter{Root::Charging, "voltage_warning"},
};

ItemArray ItemsOf(std::string structure, const ArrayParameter& array) {
  return ItemArray(structure.append(array.path), array.count, array.first);
}

}  // namespace

ItemArray RampStage(Band band, std::uint32_t stage) {
  const std::string table = BandPath(band) + "RF_ramp_table_T.stage" + std::to_string(stage);
  return ItemArray(table, kRampPoints, IndexNotation::Decimal);
}

bool HasAreoSpelling(ItemStore& items) {
  const ValueParameter& probe = kCommonValues[Number(CommonValue::SlopeLength)];
  return items.Find(RootPath(probe.root, true).append(probe.path)) != kNoItem;
}

CalibrationParameters::CalibrationParameters(ItemStore& items, bool areoSpelling) : items_(&items) {
  for (const Band band : {Band::Gsm, Band::Dcs, Band::Pcs, Band::Gsm850, Band::Td}) {
    BandParameters parameters{{}, {ItemValue(BandPath(band).append(kMaxGainIndex))}};
    for (const ArrayParameter& array : kBandArrays) {
      parameters.arrays.push_back({ItemsOf(BandPath(band), array), Values(array.count)});
    }
    bands_.push_back(std::move(parameters));
  }
  for (const auto& [root, array] : kCommonArrays) {
    arrays_.push_back({ItemsOf(RootPath(root, areoSpelling), array), Values(array.count)});
  }
  for (const ValueParameter& value : kCommonValues) {
    values_.push_back({ItemValue(RootPath(value.root, areoSpelling).append(value.path))});
  }
}

void CalibrationParameters::LoadAgc(Band band) {
  LoadBands(band, BandArray::AgcControlWord);
  for (const Band each : kGsmBands) {
    LoadGainIndex(each);
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

void CalibrationParameters::LoadTd() {
  Load(Band::Td, BandArray::AgcControlWord);
  LoadGainIndex(Band::Td);
  Load(Band::Td, BandArray::StepFactor);
}

void CalibrationParameters::LoadCharging() {
  for (const CommonValue value : {CommonValue::ChargeEndVoltage, CommonValue::PulseChargeVoltage,
                                  CommonValue::RechargeVoltage, CommonValue::SwitchVoltage,
                                  CommonValue::VoltageShutdown, CommonValue::VoltageWarning}) {
    Load(value);
  }
  Load(CommonArray::AdcVoltage);
}

void CalibrationParameters::LoadAfcStructure() {
  for (const CommonValue value : {CommonValue::SlopeLength, CommonValue::Cdac, CommonValue::Cafc}) {
    Load(value);
  }
  for (const CommonArray array :
       {CommonArray::AfcRange, CommonArray::SlopeValue, CommonArray::SlopeReciprocal}) {
    Load(array);
  }
}

void CalibrationParameters::LoadAdcPoints() {
  Load(CommonValue::Adc0);
  Load(CommonValue::Battery0);
  // The second of each pair is an element after the first and repeats it when it is missing.
  Load(CommonValue::Adc1, Cached(CommonValue::Adc0));
  Load(CommonValue::Battery1, Cached(CommonValue::Battery0));
}

void CalibrationParameters::Load(CommonValue value, std::uint32_t missing) {
  Value& target = values_[Number(value)];
  const auto content = target.item.Read(*items_);
  if (!content) {
    target.value = missing;
  } else {
    const bool hexadecimal = kCommonValues[Number(value)].alwaysHexadecimal;
    target.value = static_cast<std::uint32_t>(hexadecimal ? ParseNumber(*content, 16)
                                                          : ContentValue(*content));
  }
}

void CalibrationParameters::Load(Band band, BandArray array) {
  Array& target = Of(band).arrays[Number(array)];
  target.items.Read(*items_, target.values);
}

void CalibrationParameters::Load(CommonArray array) {
  Array& target = arrays_[Number(array)];
  target.items.Read(*items_, target.values);
}

void CalibrationParameters::LoadGainIndex(Band band) {
  Value& gainIndex = Of(band).gainIndex;
  const auto content = gainIndex.item.Read(*items_);
  gainIndex.value = content ? static_cast<std::uint32_t>(ParseNumber(*content, 16)) : 0;
}

void CalibrationParameters::LoadBands(Band band, BandArray array) {
  for (const Band each : kGsmBands) {
    if (each != Band::Pcs || band == Band::Pcs) Load(each, array);
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

void CalibrationParameters::Write(Array& target, std::span<const std::int16_t> values) {
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
  if (band == Band::Td) return StoreGainIndex(band);
  for (const Band each : kGsmBands) {
    if (each != Band::Pcs || band == Band::Pcs) StoreGainIndex(each);
  }
}

void CalibrationParameters::StoreGainIndex(Band band) {
  Of(band).gainIndex.item.Write(*items_, HexText(HexForm::UpperLower, CachedGainIndex(band)));
}

}  // namespace merovane::nvproject
