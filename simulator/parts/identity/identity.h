#pragma once

#include <memory>

#include "firmware/firmware.h"

namespace handset {

// Serial numbers in either layout, the production-information and version blocks, IMEI count.
std::unique_ptr<Module> MakeIdentityModule(Firmware& firmware);

}  // namespace handset
