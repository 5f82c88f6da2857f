#include "link/error_reporter.h"

#include "brimwell/brimwell.h"

namespace merovane {

void ErrorReporter::BeginOperation(std::uint32_t operationId) {
  Spec_ClearErrorCode(BRIMWELL_ERRORS_LAST);
  operationId_.store(operationId, std::memory_order_relaxed);
}

void ErrorReporter::ClearReport() { BeginOperation(0); }

Result ErrorReporter::Report(Result code) {
  Spec_SetErrorCode(BRIMWELL_MODULE_PHONE_COMMAND, operationId_.load(std::memory_order_relaxed),
                    static_cast<std::uint32_t>(code), 0);
  return code;
}

}  // namespace merovane
