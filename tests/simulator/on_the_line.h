// A handset that has been started, and a station on its line.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "handset/handset.h"
#include "support/wire_station.h"

namespace merovane::test {

struct StartedHandset : Handset {
  explicit StartedHandset(HandsetOptions options = Running()) : Handset(std::move(options)) {
    Start();
  }
};

struct OnTheLine {
  explicit OnTheLine(const HandsetOptions& options = Running())
      : phone(options), line(phone.Address(), options.byteOrder == handset::ByteOrder::Big) {}

  void Restart() {
    const std::string boots = std::to_string(std::stoi(phone.Status("session.boots")) + 1);
    phone.Restart();
    EXPECT_TRUE(WaitUntilRunning(phone));
    EXPECT_EQ(phone.Status("session.boots"), boots);
  }

  StartedHandset phone;
  WireStation line;
};

}  // namespace merovane::test
