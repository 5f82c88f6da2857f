// A station: simulated handsets on ports, driven through the exported functions.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "merovane/merovane.h"
#include "support/simulated_handset.h"

namespace merovane::test {

inline constexpr std::int32_t kPort = 7;

// Names the handset's device for a port while it lives.
class PortOf {
 public:
  PortOf(const Handset& handset, std::int32_t port);
  PortOf(const PortOf&) = delete;
  PortOf& operator=(const PortOf&) = delete;
  ~PortOf();

 private:
  std::string variable_;
};

// A handset that is up, and its port.
struct RunningHandset {
  RunningHandset(std::uint8_t mode, std::int32_t port)
      : phone(RunningIn(mode)), device((phone.Start(), phone), port) {}

  Handset phone;
  PortOf device;
};

// What the error-code library was told last.
struct Reported {
  std::uint32_t operation;
  std::int32_t code;
  friend bool operator==(const Reported&, const Reported&) = default;
};
Reported LastReported();

// Leaves the process-wide state as a fresh library has it.
class StationTest : public ::testing::Test {
 protected:
  ~StationTest() override;

  // Puts a handset on kPort; one that was there goes first.
  void SwitchOn(const HandsetOptions& options);
  void SwitchOff();

  std::optional<Handset> phone;

 private:
  std::optional<PortOf> device_;
};

}  // namespace merovane::test
