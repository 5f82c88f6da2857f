// Calibrating the GSM radio of a handset in calibration mode.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"
#include "merovane/types.h"

namespace merovane::commands {

// GSM is mode 1, TD-SCDMA mode 7; others do nothing.
Result ChangeGSMTDCalMode(Phone& phone, std::int32_t mode);
Result InitGSMTDCalMode(Phone& phone, std::int32_t mode);
Result Active(Phone& phone, std::uint32_t on);
Result SetPhoneClassmark(Phone& phone, std::uint32_t band);

Result AfcStart(Phone& phone, std::uint32_t start, const QV_AFC_PARAMETERS* parameters);
Result AfcStartEx(Phone& phone, std::uint32_t start, QV_EXTENDED_AFC* run);
Result AgcStart(Phone& phone, std::uint32_t start, const QV_AGC_PARAMETERS* parameters,
                QV_AGC_RESULT* measured);

Result PwrStepFactorSet(Phone& phone, const QV_POWER_STEP* step);
Result PASetting(Phone& phone, const QV_POWER_STEP* setting);
Result RampSetting(Phone& phone, std::uint32_t flag, const std::uint16_t* rampUp,
                   const std::uint16_t* rampDown, std::uint32_t band);
Result EnterMaxTxPowerStatus(Phone& phone);
Result LeaveMaxTxPowerStatus(Phone& phone);
Result EnterMaxRxPowerStatus(Phone& phone);
Result LeaveMaxRxPowerStatus(Phone& phone);

Result ReadIMEI(Phone& phone, std::uint8_t* imei);
Result ReadIMEI_ASCII(Phone& phone, char* text);

}  // namespace merovane::commands
