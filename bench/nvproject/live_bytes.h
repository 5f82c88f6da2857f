// How much this program has allocated and not yet freed.
#pragma once

#include <cstddef>

namespace merovane::bench {

std::size_t LiveBytes();

}  // namespace merovane::bench
