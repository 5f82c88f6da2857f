// Calibrating multi-chip handsets: what single-chip ones do by messages is done here by radio steps
// and by writes of calibration data.
#pragma once

#include <cstddef>
#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"
#include "merovane/types.h"

namespace merovane::commands {

Result SetPhoneClassmark_MChip(Phone& phone, std::uint32_t band);
Result SetPhoneAfcMode(Phone& phone, std::uint32_t mode);
Result SetTxParam(Phone& phone, std::uint32_t first, std::uint16_t second, std::uint16_t third,
                  std::uint16_t fourth);
Result Active_MChip(Phone& phone, std::uint32_t on);
Result TxOn_MChip(Phone& phone, std::uint32_t on, std::uint16_t channel, std::uint16_t level);
Result AfcStart_MChip(Phone& phone, std::uint32_t start, const QV_AFC_PARAMETERS* parameters);
Result AgcStart_MChip(Phone& phone, std::uint32_t start, const QV_AGC_PARAMETERS* parameters,
                      QV_AGC_RESULT* measured);
Result CalDirectCurr(Phone& phone, std::uint16_t* first, std::uint16_t* second);
Result SendNonSignalCmd(Phone& phone, const QV_NON_SIGNAL_COMMAND* command,
                        QV_NON_SIGNAL_ANSWER* answer, std::uint32_t timeoutMs);

}  // namespace merovane::commands
