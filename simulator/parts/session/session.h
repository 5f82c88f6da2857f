#pragma once

#include <memory>

#include "firmware/firmware.h"

namespace handset {

// Start-up, modes, restarts and deep sleep.
std::unique_ptr<Module> MakeModeModule(Firmware& firmware);
// The trace output of the ARM and of the DSP.
std::unique_ptr<Module> MakeTraceModule(Firmware& firmware);
// AT commands over the diagnostic link.
std::unique_ptr<Module> MakeAtModule(Firmware& firmware);
// The software version string.
std::unique_ptr<Module> MakeVersionModule(Firmware& firmware);

}  // namespace handset
