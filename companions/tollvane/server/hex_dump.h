// Data as people read them.
#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace channel_server {

// Lines of 16 bytes: offset, hex column, character column ("." for what cannot be printed).
std::string HexDump(std::span<const std::byte> data);

}  // namespace channel_server
