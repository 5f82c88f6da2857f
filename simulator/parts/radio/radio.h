#pragma once

#include <memory>

#include "firmware/firmware.h"

namespace handset {

// The radio and all that calibrates it: layer 1, the calibration items, TD parameters.
std::unique_ptr<Module> MakeRadioModule(Firmware& firmware);

}  // namespace handset
