// The process's own memory.
#pragma once

#include <cstddef>

namespace merovane::platform {

// Whether every byte of the range is mapped writable. True where the system does not say.
bool IsWritable(const void* address, std::size_t bytes);

}  // namespace merovane::platform
