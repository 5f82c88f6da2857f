// The numbered serial ports that are there now.
#pragma once

#include <cstdint>
#include <map>
#include <memory>

namespace merovane::platform {

inline constexpr std::int32_t kLastPort = 256;

class SerialPorts {
 public:
  SerialPorts();
  ~SerialPorts();
  SerialPorts(const SerialPorts&) = delete;
  SerialPorts& operator=(const SerialPorts&) = delete;

  // The present ports. A port's value changes when its device was replaced since the last call.
  std::map<std::int32_t, std::uint64_t> Present();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace merovane::platform
