// What `merovane listen` does.
#pragma once

#include <cstdint>
#include <ostream>

#include "support/exit_codes.h"

namespace merovane::tool {

struct ListenOptions {
  std::int32_t port = 0;
  std::int32_t baudRate = 115200;
  std::uint32_t type = 0;
  std::uint32_t subtype = 0;
  std::uint32_t seconds = 10;
};
// Shows the frames of one type and subtype that come to a port.
int Listen(const ListenOptions& options, std::ostream& out);

}  // namespace merovane::tool
