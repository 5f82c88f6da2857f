// Data as people type them.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace channel_server {

// What a typed line stands for: hex bytes ("7e 00", "7E00"; blanks between bytes do not count), or
// after "text:" the characters as they stand, with the escapes \r \n \t \0 \\ and \xHH. Nothing
// when the line is neither; an empty line is no bytes.
std::optional<std::vector<std::byte>> ParseTypedData(std::string_view line);

}  // namespace channel_server
