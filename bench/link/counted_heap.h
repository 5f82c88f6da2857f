// Counts what this process allocates through the C++ heap.
#pragma once

#include <cstddef>
#include <cstdint>

namespace bench {

std::uint64_t Allocations();
std::int64_t HeapBytes();

}  // namespace bench
