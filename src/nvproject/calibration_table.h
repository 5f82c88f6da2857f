// Where a project keeps the calibration parameters, how many there are and how they are written.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "nvproject/hex_text.h"
#include "nvproject/item_values.h"

namespace merovane::nvproject {

enum class Band { Gsm, Dcs, Pcs, Gsm850 };
inline constexpr std::size_t kBandCount = 4;

// The structures that the parameters are in.
enum class Root { Calibration, DspUse, RfCommon, AfcStructure, Charging };

struct Structure {
  std::optional<Root> outer;
  std::string_view name;
};

// Projects spell the AFC structure's name in one of two ways.
inline constexpr std::string_view kAfcStructureAreo = "areo2_RF_AFC_STRUCT.";
inline constexpr std::string_view kAfcStructureAero = "aero2_RF_AFC_STRUCT.";

inline constexpr std::array kStructures = {
    Structure{{}, "calibration_param_T."},
    Structure{Root::Calibration, "rf_param_dsp_use."},
    Structure{Root::DspUse, "rf_common_param_dsp_use."},
    Structure{Root::RfCommon, kAfcStructureAero},
    Structure{{}, "production_param_T.CHR_PARAM_T."},
};

// In the structure of the DSP's parameters.
inline constexpr std::array<std::string_view, kBandCount> kBandStructures = {
    "rf_gsm_param_dsp_use.", "rf_dcs_param_dsp_use.", "rf_pcs_param_dsp_use.",
    "rf_gsm850_param_dsp_use."};

// Arrays that every band has, below its structure.
enum class BandArray {
  RampUpStage0,
  RampUpStage1,
  RampDownStage0,
  RampDownStage1,
  TxBoundary,
  StepFactor,
  RxBoundary,
  RxCompensation,
  AgcControlWord,
};

struct ArrayParameter {
  std::string_view path;
  std::size_t count;
  IndexNotation first = IndexNotation::Decimal;
};

inline constexpr std::array kBandArrays = {
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

// A band's gain index, always read as hexadecimal.
inline constexpr std::string_view kMaxGainIndex = "max_rf_gain_index";

enum class CommonArray { AfcRange, SlopeValue, SlopeReciprocal, AdcVoltage };

struct CommonArrayParameter {
  Root root;
  ArrayParameter array;
};

inline constexpr std::array kCommonArrays = {
    CommonArrayParameter{Root::AfcStructure, {"slope_struct.afc_range_arr", 16}},
    CommonArrayParameter{Root::AfcStructure, {"slope_struct.slope_value_arr", 16}},
    CommonArrayParameter{Root::AfcStructure, {"slope_struct.slope_value_reciprocal_arr", 16}},
    CommonArrayParameter{Root::Charging, {"adc_voltage_table", 16}},
};

constexpr const ArrayParameter& ArrayOf(BandArray parameter) {
  return kBandArrays[static_cast<std::size_t>(parameter)];
}
constexpr const ArrayParameter& ArrayOf(CommonArray parameter) {
  return kCommonArrays[static_cast<std::size_t>(parameter)].array;
}

enum class CommonValue {
  CalParamVersion,
  AfcCenter,
  AfcSlope,
  SlopeLength,
  Cdac,
  Cafc,
  Adc0,
  Adc1,
  Battery0,
  Battery1,
  ChargeEndVoltage,
  PulseChargeVoltage,
  RechargeVoltage,
  SwitchVoltage,
  VoltageShutdown,
  VoltageWarning,
};

enum class Reading { ByPrefix, AlwaysHexadecimal };

struct ValueParameter {
  Root root;
  std::string_view path;
  HexForm form = HexForm::UpperUpper;
  Reading reading = Reading::ByPrefix;
};

inline constexpr std::array kCommonValues = {
    ValueParameter{Root::Calibration, "cal_param_version", HexForm::UpperUpper,
                   Reading::AlwaysHexadecimal},
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

}  // namespace merovane::nvproject
