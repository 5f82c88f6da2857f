// Every part that a handset is made of.
#pragma once

#include <memory>
#include <vector>

#include "firmware/firmware.h"

namespace handset {

std::vector<std::unique_ptr<Part>> MakeParts(Firmware& firmware);

}  // namespace handset
