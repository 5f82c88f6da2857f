// A station's test: a simulated handset on a port, driven through the exported functions.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "handset/handset.h"
#include "merovane/merovane.h"

namespace api_test {

using namespace std::chrono_literals;
using handset::Handset;
using handset::HandsetOptions;
using handset::Reply;

inline constexpr int32_t kPort = 7;
inline constexpr auto kPatience = 20s;

// Names the handset's device for a port while it lives.
class PortOf {
 public:
  PortOf(const Handset& handset, int32_t port);
  PortOf(const PortOf&) = delete;
  PortOf& operator=(const PortOf&) = delete;
  ~PortOf();

 private:
  std::string variable_;
};

// A handset that runs in a mode, and its port.
struct RunningHandset {
  RunningHandset(uint8_t mode, int32_t port) : phone(Options(mode)) {
    phone.Start();
    device.emplace(phone, port);
  }
  static HandsetOptions Options(uint8_t mode) {
    HandsetOptions options;
    options.startMode = mode;
    return options;
  }

  Handset phone;
  std::optional<PortOf> device;
};

// An eventfd.
class Event {
 public:
  Event();
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;
  ~Event();
  QV_EVENT Handle() const { return descriptor_; }
  bool IsSet() const { return Wait(0ms); }
  bool Wait(std::chrono::milliseconds patience) const;

 private:
  int descriptor_;
};

// What the error-code library was told last.
struct Reported {
  uint32_t operation;
  int32_t code;
  friend bool operator==(const Reported&, const Reported&) = default;
};
Reported LastReported();

// Leaves the process-wide state as a fresh library has it.
class StationTest : public ::testing::Test {
 protected:
  ~StationTest() override;
};

}  // namespace api_test
