// The Bluetooth transceiver as equipment under test.
#pragma once

#include <cstdint>

namespace merovane::commands {

inline constexpr std::uint32_t kMaxBluetoothChannel = 78;

}  // namespace merovane::commands
