// Serial numbers in either layout, the production-information and version blocks, IMEI count.
#pragma once

#include <memory>

#include "firmware/firmware.h"

namespace handset {

std::unique_ptr<Part> MakeIdentityPart(Firmware& firmware);

}  // namespace handset
