// The numbered ports: which device each stands for, and which are there now.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace merovane::platform {

inline constexpr std::int32_t kLastPort = 256;

// The environment names the device of port n in the variable CASSORIND_COM<n>.
inline constexpr std::string_view kPortVariable = "CASSORIND_COM";

// What the environment says of ports, by number: a device or whatever else stands for one. A
// variable that is empty says nothing. Read anew each time.
std::map<std::int32_t, std::string> NamedPorts();
// What it says of one port; without a word the system's own device of that number: /dev/ttyS<n-1>,
// on Windows COM<n>.
std::string DeviceOfPort(std::int32_t port);

// The whole of `text` as a decimal number from `first` to `last`, written without leading zeros.
std::optional<std::int32_t> WholeNumber(std::string_view text, std::int32_t first,
                                        std::int32_t last);

// One thread at a time may look.
class SerialPorts {
 public:
  SerialPorts();
  ~SerialPorts();
  SerialPorts(const SerialPorts&) = delete;
  SerialPorts& operator=(const SerialPorts&) = delete;

  // The present ports. A port's value changes when its device was replaced since the last call, as
  // far as the system tells.
  std::map<std::int32_t, std::uint64_t> Present();
  // Whether it tells of a device that went and came back between two calls.
  static bool TellsReturns();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace merovane::platform
