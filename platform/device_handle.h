// Devices that something else has opened, by their handles or descriptors.
#pragma once

#include <cstddef>
#include <cstdint>

namespace merovane::platform {

// Another handle of the same open device, the caller's to close; -1 when the system has no more.
std::intptr_t SecondHandle(std::intptr_t device);

// What was written and has not left the device; 0 also when it does not say.
std::size_t UnsentBytes(std::intptr_t device);

}  // namespace merovane::platform
