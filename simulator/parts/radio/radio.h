// The radio and all that calibrates it: layer 1, the calibration items, TD parameters.
#pragma once

#include <memory>

#include "firmware/firmware.h"

namespace handset {

std::unique_ptr<Part> MakeRadioPart(Firmware& firmware);

}  // namespace handset
