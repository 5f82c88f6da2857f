// The simulated handset as tests start it and wait for it.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "handset/handset.h"

namespace merovane::test {

using namespace std::chrono_literals;
using handset::Handset;
using handset::HandsetOptions;
using handset::HandsetState;
using handset::Reply;

// Long enough that only something broken runs into it.
inline constexpr std::chrono::milliseconds kPatience = 20s;
// For what must not happen.
inline constexpr std::chrono::milliseconds kQuiet = 150ms;

// A handset that boots straight into a mode.
inline HandsetOptions RunningIn(std::uint8_t mode) {
  HandsetOptions options;
  options.startMode = mode;
  return options;
}

// A handset that is up, in a test mode.
inline HandsetOptions Running(handset::TransportKind transport = handset::TransportKind::Pty,
                              std::uint16_t tcpPort = 0) {
  HandsetOptions options = RunningIn(1);
  options.transport = transport;
  options.tcpPort = tcpPort;
  return options;
}

// Waits until the handset's port is there.
inline bool WaitForPort(const Handset& phone) {
  phone.State();  // After the port's end, if that is what the station has just seen.
  return phone.WaitForState([](const HandsetState& state) { return state.portPresent; }, kPatience);
}

// Waits until the handset is up; in that mode when one is given.
inline bool WaitUntilRunning(const Handset& phone, std::optional<std::uint8_t> mode = {}) {
  return phone.WaitForState(
      [&](const HandsetState& state) {
        return state.power == handset::Power::Running && (!mode || state.mode == *mode);
      },
      kPatience);
}

}  // namespace merovane::test
