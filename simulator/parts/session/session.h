// The parts that boot, change modes and talk about themselves.
#pragma once

#include <memory>

#include "firmware/firmware.h"

namespace handset {

// Start-up, modes, restarts and deep sleep.
std::unique_ptr<Part> MakeModePart(Firmware& firmware);
// The trace output of the ARM and of the DSP.
std::unique_ptr<Part> MakeTracePart(Firmware& firmware);
// AT commands over the diagnostic link.
std::unique_ptr<Part> MakeAtPart(Firmware& firmware);
// The software version string.
std::unique_ptr<Part> MakeVersionPart(Firmware& firmware);

}  // namespace handset
