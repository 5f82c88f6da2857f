// The fixed-NV information: IMEIs, addresses and the GPS settings in one block.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"
#include "merovane/types.h"

namespace merovane::commands {

Result CheckFixedNV(Phone& phone, std::uint32_t mode);
// The first four fields only, and no checksum.
Result NvWriteDirect(Phone& phone, const QV_FIXED_NV_INFO* info);
Result FastWriteNvInfo(Phone& phone, const QV_FIXED_NV_INFO* info);
Result FastReadNvInfo(Phone& phone, QV_FIXED_NV_INFO* info);

}  // namespace merovane::commands
