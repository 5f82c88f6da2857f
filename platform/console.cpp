#include "platform/console.h"

#include <utility>

#include "platform/mutex.h"

namespace merovane::platform {
namespace {

struct Replacement {
  Mutex mutex;
  MessageBoxFunction function MEROVANE_GUARDED_BY(mutex);
};

Replacement& MessageBoxReplacement() {
  static Replacement replacement;
  return replacement;
}

}  // namespace

void SetMessageBox(MessageBoxFunction function) {
  Replacement& replacement = MessageBoxReplacement();
  const MutexLock lock(replacement.mutex);
  replacement.function = std::move(function);
}

void ShowMessageBox(const std::string& text, const std::string& caption) {
  MessageBoxFunction function;
  {
    Replacement& replacement = MessageBoxReplacement();
    const MutexLock lock(replacement.mutex);
    function = replacement.function;
  }
  // Outside the lock: a box stands for as long as nobody closes it.
  if (function) {
    function(text, caption);
  } else {
    ShowSystemMessageBox(text, caption);
  }
}

}  // namespace merovane::platform
