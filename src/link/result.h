// Result codes: what every operation ends in.
#pragma once

#include <cstdint>
#include <limits>
#include <string_view>

namespace merovane {

enum class Result : std::int32_t {
#define RESULT(code, name, publicName, meaning) name = code,
#include "api/result_codes.def"
#undef RESULT
};

constexpr bool Succeeded(Result result) { return result == Result::Success; }

// The public name of a code that the table holds (empty for 39); "SUCCESS" for any other.
std::string_view ResultName(Result result);

// One line for people; empty for a code that the table does not hold.
std::string_view ResultMeaning(Result result);

// Whether a caller's buffer can have this many bytes, which is for InvalidParam otherwise: some,
// and not a negative number's bits, up to which some commands would fill it with zeros.
constexpr bool IsCapacity(std::uint32_t bytes) {
  return bytes > 0 && bytes <= std::numeric_limits<std::int32_t>::max();
}

}  // namespace merovane
