// What the end of the process asks of the sessions. Their exports are declared in
// api/exports/10_session.api.
#pragma once

#include "library/library.h"

namespace merovane::library {

// Stops every mode process and closes every port; false when one did not close.
bool CloseAll(Library& library);

}  // namespace merovane::library
