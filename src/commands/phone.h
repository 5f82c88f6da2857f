// What commands work on: a handset's link and what the commands keep between calls.
#pragma once

#include "commands/calibration/calibration_state.h"
#include "commands/serial_number_layout.h"
#include "link/link_environment.h"
#include "link/phone_link.h"

namespace merovane {

struct Phone {
  explicit Phone(LinkEnvironment& environment, platform::Clock& clock = platform::SystemClock(),
                 ChannelLibrary library = {})
      : link(environment, clock, library),
        newSerialNumberLayout(LayoutNamed(environment.settings.SerialNumberMagic())) {}
  Phone(const Phone&) = delete;
  Phone& operator=(const Phone&) = delete;

  PhoneLink link;
  commands::CalibrationState calibration;
  // What a handset without serial numbers gets.
  SerialNumberLayout newSerialNumberLayout;
};

}  // namespace merovane
