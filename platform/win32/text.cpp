// The ANSI code page.
#include "platform/text.h"

#include "platform/win32/windows_api.h"

namespace merovane::platform {

std::string NarrowFromUtf16(std::u16string_view text) {
  return NarrowFromWide(std::wstring(text.begin(), text.end()));
}

}  // namespace merovane::platform
