// What commands work on: a handset's link and what the commands keep between calls.
#pragma once

#include "commands/test/mode_process.h"
#include "link/phone_link.h"
#include "link/settings.h"

namespace merovane {

struct Phone {
  explicit Phone(LinkSettings& settings, platform::Clock& clock = platform::SystemClock(),
                 ChannelLibrary library = {})
      : link(settings, clock, library) {}
  Phone(const Phone&) = delete;
  Phone& operator=(const Phone&) = delete;

  PhoneLink link;
  ModeProcess modeProcess;
};

}  // namespace merovane
