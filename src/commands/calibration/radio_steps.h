// Single radio test settings and measurements of a multi-chip handset: items in RAM, in the current
// band but for the direct current. Each writes its own name to the log and leaves the result to the
// command that runs it.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands::steps {

// These send nothing when the value is the one written last.
Result SetTch(Phone& phone, std::uint16_t channel);
Result SetCdac(Phone& phone, std::uint16_t trim);
Result SetCafc(Phone& phone, std::uint16_t trim);
Result SetCafcCenter(Phone& phone, std::uint16_t center);
// Always sends.
Result SetPcl(Phone& phone, std::uint16_t level);

Result SwitchTransmitter(Phone& phone, bool on);

struct ReceiveParameters {
  std::uint16_t first;
  std::uint16_t second;
  std::uint16_t third = 18;
};
enum class ReceiveFor { Level, DirectCurrent };
Result SwitchReceiver(Phone& phone, bool on, const ReceiveParameters& parameters,
                      ReceiveFor purpose = ReceiveFor::Level);

// Reads until the value is not 0, at most 6 times. `rssi` is the last value read.
Result GetRssi(Phone& phone, std::uint16_t& rssi);
Result GetRxLevel(Phone& phone, std::uint16_t& level);
Result GetDirectCurrent(Phone& phone, std::uint16_t& first, std::uint16_t& second);

Result Activate(Phone& phone, bool on);

}  // namespace merovane::commands::steps
