// What a port's device name stands for.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "cassorind/cassorind.h"
#include "platform/byte_stream.h"

namespace cassorind {

namespace platform = merovane::platform;

// "socket://host:port" and "socket://[address]:port" are TCP connections, anything else is a serial
// device. Null when it cannot be opened, which `failure` explains.
std::unique_ptr<platform::ByteStream> OpenDevice(const std::string& name, std::uint32_t baudRate,
                                                 CassorindFailure& failure);

}  // namespace cassorind
