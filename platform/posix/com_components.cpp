#include "platform/com_components.h"

namespace merovane::platform {

bool IsComponentRegistered(std::string_view /*name*/) { return false; }

}  // namespace merovane::platform
