// One run of a command: what every command does besides its exchange.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

#include "commands/phone.h"
#include "link/frame_codec.h"
#include "link/result.h"

namespace merovane::commands {

// What a frame can carry: its length field counts header and payload in 16 bits.
inline constexpr std::size_t kMaxPayloadBytes =
    std::numeric_limits<std::uint16_t>::max() - kHeaderBytes;

// A command makes one first thing, so that a refused argument is reported under its id too; logs
// its name once its arguments are checked; and returns what Finish gives back.
class Operation {
 public:
  Operation(Phone& ofPhone, std::uint32_t id) : Operation(ofPhone) { link.BeginOperation(id); }
  // For the few commands that have no id: results go by the id recorded before.
  explicit Operation(Phone& ofPhone) : phone(ofPhone), link(ofPhone.link) {}

  void Log(std::string_view name) { link.LogLine(name); }

  // Logs the result and gives it back.
  [[nodiscard]] Result Finish(Result result) {
    link.LogResult(result);
    return result;
  }

  Phone& phone;
  PhoneLink& link;
};

}  // namespace merovane::commands
