// Result codes: what every operation ends in.
#pragma once

#include <cstdint>
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

}  // namespace merovane
