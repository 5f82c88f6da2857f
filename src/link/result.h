// Result codes: what every operation ends in.
#pragma once

#include <cstdint>
#include <string_view>

namespace merovane {

enum class Result : std::int32_t {
#define RESULT(code, name, publicName, meaning, advice) name = code,
#include "api/result_codes.def"
#undef RESULT
};

constexpr bool Succeeded(Result result) { return result == Result::Success; }

// The public name as logs show it: empty for 39, "SUCCESS" for -1 and for what is no code.
std::string_view ResultName(Result result);

// For people; empty for what is no code: what it says, and what to look at then.
// Both end with a zero.
std::string_view ResultMeaning(Result result);
std::string_view ResultAdvice(Result result);

}  // namespace merovane
