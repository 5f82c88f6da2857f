// The line that every receive measurement writes to the log.
#pragma once

#include <array>
#include <cstdio>

#include "commands/operation.h"
#include "merovane/types.h"

namespace merovane::commands {

inline void LogMeasurement(Operation& operation, const QV_AGC_RESULT& measured) {
  std::array<char, 48> line;
  std::snprintf(line.data(), line.size(), "RSSI = 0X%X, RxLevel = %d",
                static_cast<unsigned>(measured.rssi), static_cast<int>(measured.rx_level));
  operation.Log(line.data());
}

}  // namespace merovane::commands
