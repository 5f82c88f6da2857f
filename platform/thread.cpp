#include "platform/thread.h"

#include <utility>

namespace merovane::platform {

Thread::~Thread() {
  if (state_ && !WaitMs(0)) Abandon();
}

bool Thread::StartWithoutQueue(std::function<void()> body) {
  return Create(std::move(body), false);
}

}  // namespace merovane::platform
