// Narrow text: UTF-8, on Windows the ANSI code page.
#pragma once

#include <string>
#include <string_view>

namespace merovane::platform {

// What the narrow encoding cannot express, and unpaired surrogates, become replacement characters.
std::string NarrowFromUtf16(std::u16string_view text);

}  // namespace merovane::platform
