// Threads that can be waited for with a limit, also while the library that they run in is unloaded,
// and given up when a foreign library holds them.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/event.h"

namespace merovane::platform {

// The object is its owner's: one thread at a time calls its operations.
class Thread {
 public:
  Thread() = default;
  Thread(const Thread&) = delete;
  Thread& operator=(const Thread&) = delete;
  // Abandons a thread that still runs.
  ~Thread();

  // False when the system gives no thread, or the one before still runs. `body` must own, or share,
  // all that it uses: the thread may outlive this object when it is abandoned. An exception ends
  // the thread and nothing else. Signals are left to the host program's threads.
  //
  // Returns when the thread runs and can be posted messages.
  bool Start(std::function<void()> body);
  // Returns at once: a new thread may not run before the caller has returned from loading or
  // unloading a library. It can be posted no messages.
  bool StartWithoutQueue(std::function<void()> body);

  bool Running() const;
  // The id to which messages are posted; 0 when there are none to take them.
  std::uint32_t Id() const;
  // True when the body has ended (or never ran), and also when the system killed the thread on the
  // way out of the process. Its resources are freed then.
  bool WaitMs(std::uint32_t ms);
  // Gives the thread up: it is not waited for any more, and the library that it runs in stays in
  // memory. It is never killed, since that would leave its locks held for the rest of the process.
  void Abandon();

 private:
  bool Create(std::function<void()> body, bool takesMessages);

  struct State;
  std::shared_ptr<State> state_;
};

}  // namespace merovane::platform
