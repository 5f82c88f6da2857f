// The parts that keep and show memory.
#pragma once

#include <memory>

#include "firmware/firmware.h"

namespace handset {

// Production flash items and NV items.
std::unique_ptr<Part> MakeItemsPart(Firmware& firmware);
// The fixed-NV information block as stations read and write it.
std::unique_ptr<Part> MakeFixedNvPart(Firmware& firmware);
// Memory-mapped registers.
std::unique_ptr<Part> MakeRegistersPart(Firmware& firmware);
// Chip, LCD and flash identification, and the 7310K exchange.
std::unique_ptr<Part> MakeIdentificationPart(Firmware& firmware);

// What a station sees of production flash item 0 starts with this magic even when only the
// production-information block holds it: they are one area of the handset.
inline constexpr const char* kProductionItem = "production";

}  // namespace handset
