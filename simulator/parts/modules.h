#pragma once

#include <memory>
#include <vector>

#include "firmware/firmware.h"

namespace handset {

// Every part that a handset is made of.
std::vector<std::unique_ptr<Module>> MakeModules(Firmware& firmware);

}  // namespace handset
