// What commands work on: a handset's link and what the commands keep between calls.
#pragma once

#include "commands/calibration/calibration_state.h"
#include "commands/handset/mode_process.h"
#include "commands/serial_number_layout.h"
#include "link/phone_link.h"
#include "link/settings.h"

namespace merovane {

struct Phone {
  explicit Phone(LinkSettings& settings, platform::Clock& clock = platform::SystemClock(),
                 ChannelLibrary library = {})
      : link(settings, clock, library),
        newSerialNumberLayout(LayoutNamed(settings.serialNumberMagic)) {}
  Phone(const Phone&) = delete;
  Phone& operator=(const Phone&) = delete;

  PhoneLink link;
  ModeProcess modeProcess;
  commands::CalibrationState calibration;
  // What a handset without serial numbers gets.
  SerialNumberLayout newSerialNumberLayout;
};

}  // namespace merovane
