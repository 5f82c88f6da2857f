// Calls in words and as lines of JSON.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "library/call_record.h"

namespace merovane::library {

// "PC_ERR_NO_ANSWER"; never null.
const char* ResultNameOf(std::int32_t result);

// One line, without its end.
std::string InJson(const CallRecord& record);
// What stands in a trace where `lines` of it are missing.
std::string GapInJson(std::int32_t port, std::uint64_t lines, std::string_view why);

}  // namespace merovane::library
