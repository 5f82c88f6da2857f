// What works on handsets in their boot mode runs through two COM components.
#pragma once

#include "link/result.h"

namespace merovane::commands {

// DownloadRegister when one of them is missing. DownloadStart when both are there: their interfaces
// are not known.
Result FindDownloadComponents();

}  // namespace merovane::commands
