// Which device a port number stands for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace cassorind {

struct SerialDevice {
  std::string name;  // as the system's open call takes it
};

struct TcpAddress {
  std::string host;
  std::string service;  // the TCP port
};

// One of the two; none when the name cannot be a device's.
struct Device {
  std::optional<SerialDevice> serial;
  std::optional<TcpAddress> tcp;
};

// What the environment says of port `port` or, without a word, the system's own device of that
// number.
Device DeviceOfPort(std::uint32_t port);

// Reads "socket://host:port" or "socket://[address]:port"; anything else is a serial device.
Device ParseDevice(const std::string& name);

// Implemented for each system.
std::string EnvironmentValue(const std::string& variable);  // empty when not set
std::string DefaultSerialName(std::uint32_t port);
std::string SerialNameFromUser(const std::string& name);

}  // namespace cassorind
