// Threads that can be waited for with a limit and, when a foreign library holds
// them, given up.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/event.h"

namespace merovane::platform {

class Thread {
 public:
  Thread() = default;
  Thread(const Thread&) = delete;
  Thread& operator=(const Thread&) = delete;
  // Abandons a thread that still runs.
  ~Thread();

  // False when the system gives no thread. `body` must own, or share, all that it
  // uses: the thread may outlive this object when it is abandoned. Returns when the
  // thread runs and can be posted messages.
  bool Start(std::function<void()> body);
  bool Running() const;
  // The id to which messages are posted; 0 before a start.
  std::uint32_t Id() const;
  // True when the thread has ended (or never ran). Its resources are freed then.
  bool WaitMs(std::uint32_t ms);
  // Gives the thread up: it is not waited for any more. It is never killed, since that would leave
  // its locks held for the rest of the process.
  void Abandon();

 private:
  struct State;
  std::shared_ptr<State> state_;
};

}  // namespace merovane::platform
