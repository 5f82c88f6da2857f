// The DSP's debug functions. They have no operation ids: their results are reported under the one
// recorded before.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands {

Result DspDebug_ResetRFparam(Phone& phone);
Result DspDebug_RdRegMemo(Phone& phone, std::uint32_t unused, std::uint32_t width,
                          std::uint32_t address, std::uint8_t* data, std::uint16_t count);
Result DspDebug_WrRegMemo(Phone& phone, std::uint32_t unused, std::uint32_t width,
                          std::uint32_t address, std::uint32_t value);
Result DspDebug_PlotFrame(Phone& phone, std::uint32_t a, std::uint8_t b, std::uint8_t c,
                          std::uint16_t d, std::uint16_t e);

}  // namespace merovane::commands
