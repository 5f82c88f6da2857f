// Who else has a device open.
#pragma once

#include <string>

namespace merovane::platform {

// The other processes that have the device open, as "minicom (process 4711), cat (process 4712)";
// empty when there are none, or none that this user may see. Windows lets one process have a serial
// port and does not tell which: always empty there. Takes some milliseconds.
std::string OtherHoldersOf(const std::string& device);

}  // namespace merovane::platform
