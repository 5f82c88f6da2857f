// Calibrating the TD-SCDMA radio of a handset in TD calibration mode.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"
#include "merovane/types.h"

namespace merovane::commands {

Result TDTxSweep(Phone& phone, const QV_TD_TX_SWEEP* sweep);
Result TdStartTx(Phone& phone, const QV_TD_TX_START* start);
Result PwrStepFactorSweepSet_TD(Phone& phone, const QV_TD_POWER_SWEEP* sweep);
Result PwrStepFactorSet_TD(Phone& phone, const QV_POWER_STEP* step);
Result SetTDContTxRxMode(Phone& phone, std::uint32_t mode);

Result ReadMode_TD(Phone& phone, std::uint8_t* data, std::uint32_t capacity);
Result SetPhoneStartMode_TD(Phone& phone, std::uint32_t mode);

Result ReadTDCalParam(Phone& phone, QV_TD_PARAMETERS* parameters);
Result WriteTDCalParam(Phone& phone, const QV_TD_PARAMETERS* parameters);

}  // namespace merovane::commands
