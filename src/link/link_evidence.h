// What a link can say of why something failed.
#pragma once

#include <cstdint>
#include <string>

#include "link/sightings.h"

namespace merovane {

// Why a channel did not open.
enum class OpenTrouble {
  None,
  NoDevice,
  DeviceTaken,
  DeviceDenied,
  NoSerialDevice,
  Pipe,
  RateRefused,
  AddressMalformed,
  HostUnknown,
  ConnectionRefused,
  NoReason,  // the channel library gives none
};

struct LinkEvidence {
  std::int32_t port = 0;
  std::string device;
  OpenTrouble trouble = OpenTrouble::None;
  std::int32_t systemError = 0;
  // The channel told that no byte will come any more.
  bool deviceGone = false;
  Sightings sightings;
};

}  // namespace merovane
