// What the exports of NV projects need besides the project.
#pragma once

#include <cstdint>

#include "library/library.h"
#include "link/byte_order.h"
#include "nvproject/commands.h"
#include "nvproject/operation_ids.h"
#include "platform/clock.h"

namespace merovane::library {

template <typename Operation>
Result RunProjectOperation(std::uint32_t id, Operation&& operation) {
  TheLibrary().settings.errors.BeginOperation(id);
  return operation();
}

inline nvproject::ImageContext ImageContextNow() {
  return {CurrentByteOrder(), platform::SystemClock().NowMs()};
}

}  // namespace merovane::library
