// Hands results to the error-code library, with the operation that gave them.
#pragma once

#include <atomic>
#include <cstdint>

#include "link/result.h"

namespace merovane {

class ErrorReporter {
 public:
  // Every command calls it first, before it looks at its arguments.
  void BeginOperation(std::uint32_t operationId);
  void ClearReport();
  // Reports the code under the operation begun last, by whichever thread, and returns it.
  Result Report(Result code);

 private:
  std::atomic<std::uint32_t> operationId_{0};
};

}  // namespace merovane
