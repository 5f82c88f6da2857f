// One book of the last report of each module.
#include "brimwell/brimwell.h"

#include <cstdint>
#include <exception>
#include <map>

#include "platform/mutex.h"

namespace {

using merovane::platform::Mutex;
using merovane::platform::MutexLock;

class ErrorBook {
 public:
  void ClearAll() {
    const MutexLock lock(mutex_);
    lastOfModule_.clear();
  }

  void ClearLast() {
    const MutexLock lock(mutex_);
    std::erase_if(lastOfModule_,
                  [last = reports_](const auto& entry) { return entry.second.sequence == last; });
  }

  void Set(E_MODULE_TYPE module, std::uint32_t operation, std::int32_t code, std::int32_t flag) {
    const MutexLock lock(mutex_);
    lastOfModule_[module] = {operation, code, flag, ++reports_};
  }

  bool Get(E_MODULE_TYPE module, BRIMWELL_ERROR& error) {
    const MutexLock lock(mutex_);
    const auto found = lastOfModule_.find(module);
    if (found == lastOfModule_.end()) return false;
    error = found->second;
    return true;
  }

 private:
  Mutex mutex_;
  std::map<E_MODULE_TYPE, BRIMWELL_ERROR> lastOfModule_ MEROVANE_GUARDED_BY(mutex_);
  std::uint32_t reports_ MEROVANE_GUARDED_BY(mutex_) = 0;
};

// Never destroyed: other libraries report while the process ends.
ErrorBook& TheBook() {
  static ErrorBook* const book = new ErrorBook;
  return *book;
}

std::uint32_t StationCode(E_MODULE_TYPE module, std::uint32_t operation, std::uint32_t code) {
  if (code == 0) return 0;
  return (static_cast<std::uint32_t>(module) << 24) + (operation << 8) + (code & 0xFF);
}

}  // namespace

void Spec_ClearErrorCode(E_ERR_TYPE type) try {
  if (type == BRIMWELL_ERRORS_ALL) {
    TheBook().ClearAll();
  } else if (type == BRIMWELL_ERRORS_LAST) {
    TheBook().ClearLast();
  }
} catch (const std::exception&) {
  // Without memory for the book there is nothing to clear.
}

std::uint32_t Spec_SetErrorCode(E_MODULE_TYPE module, std::uint32_t operation, std::uint32_t code,
                                int flag) {
  try {
    TheBook().Set(module, operation, static_cast<std::int32_t>(code), flag);
  } catch (const std::exception&) {
    // The caller still gets the code; only the book misses the report.
  }
  return StationCode(module, operation, code);
}

int Spec_GetLastError(E_MODULE_TYPE module, BRIMWELL_ERROR* error) try {
  return error && TheBook().Get(module, *error) ? 1 : 0;
} catch (const std::exception&) {
  return 0;
}
