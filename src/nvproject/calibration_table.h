// Where a project keeps the calibration parameters, how many there are and how they are written.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "nvproject/hex_text.h"
#include "nvproject/item_values.h"

namespace merovane::nvproject {

enum class Band { Gsm, Dcs, Pcs, Gsm850 };
inline constexpr std::size_t kBandCount = 4;

inline constexpr std::string_view kDspUse = "calibration_param_T.rf_param_dsp_use.";

inline constexpr std::array<std::string_view, kBandCount> kBandStructures = {
    "rf_gsm_param_dsp_use", "rf_dcs_param_dsp_use", "rf_pcs_param_dsp_use",
    "rf_gsm850_param_dsp_use"};

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

// The structures that the parameters without a band are in. A project spells the AFC structure's
// name in one of two ways.
enum class Root { Calibration, RfCommon, AfcAreo, AfcAero, Charging };

inline constexpr std::array<std::string_view, 5> kRoots = {
    "calibration_param_T.",
    "calibration_param_T.rf_param_dsp_use.rf_common_param_dsp_use.",
    "calibration_param_T.rf_param_dsp_use.rf_common_param_dsp_use.areo2_RF_AFC_STRUCT.",
    "calibration_param_T.rf_param_dsp_use.rf_common_param_dsp_use.aero2_RF_AFC_STRUCT.",
    "production_param_T.CHR_PARAM_T."};

}  // namespace merovane::nvproject
