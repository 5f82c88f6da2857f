#include "platform/com_components.h"

#include <objbase.h>

#include "platform/win32/windows_api.h"

namespace merovane::platform {

bool IsComponentRegistered(std::string_view name) {
  CLSID id;
  return SUCCEEDED(CLSIDFromProgID(WideFromNarrow(name).c_str(), &id));
}

}  // namespace merovane::platform
