// Faults put between the sweep and the library, which it must find before it counts.
#pragma once

#include <string_view>
#include <vector>

#include "sweep/surface.h"

namespace merovane::sweep {

// The export that they are planted in.
inline constexpr std::string_view kPlantedIn = "QV_ReadFlash_MT";

// "overrun", "null", "limit"; empty for any other kind.
std::vector<Export> SurfaceWith(std::string_view kind);

}  // namespace merovane::sweep
