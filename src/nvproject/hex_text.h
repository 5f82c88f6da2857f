// The three hexadecimal spellings in which values are written to contents.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace merovane::nvproject {

enum class HexForm {
  UpperUpper,  // 0X1F
  UpperLower,  // 0X1f
  LowerLower,  // 0x1f
};

inline std::string HexText(HexForm form, std::uint32_t value) {
  char digits[8];
  char* const end = std::to_chars(digits, digits + sizeof(digits), value, 16).ptr;
  if (form == HexForm::UpperUpper) {
    for (char* at = digits; at != end; ++at) {
      if (*at >= 'a') *at = static_cast<char>(*at - 'a' + 'A');
    }
  }
  return std::string(form == HexForm::LowerLower ? "0x" : "0X").append(digits, end);
}

}  // namespace merovane::nvproject
