// What `merovane log` does.
#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include "support/exit_codes.h"

namespace merovane::tool {

struct RenderOptions {
  std::string recording = "-";  // a file of received bytes; "-": standard input
  std::string directory = ".";
  std::optional<std::string> name;  // of the log; none: the recording's
  std::uint32_t bytesPerLine = 16;
  bool timeStamps = false;  // of the rendering: a recording has none
  bool offsets = true;
  bool characters = true;
  bool console = false;                  // on the console as well
  std::optional<std::string> extension;  // of a data file that takes the bytes as they are
  std::uint32_t sizeLimitMb = 0;         // 0: none
};
// Writes a recording of received data as a readable log, at the end of what is there.
int Render(const RenderOptions& options, std::ostream& out);

}  // namespace merovane::tool
