// COM components that are installed on the machine.
#pragma once

#include <string_view>

namespace merovane::platform {

// Whether one is registered under that name, as in "Vendor.Component". None is, elsewhere than on
// Windows.
bool IsComponentRegistered(std::string_view name);

}  // namespace merovane::platform
