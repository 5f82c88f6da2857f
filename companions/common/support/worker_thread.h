// A library's own thread, which can be waited for while the system unloads the library.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace companions {

class WorkerThread {
 public:
  WorkerThread() = default;
  WorkerThread(const WorkerThread&) = delete;
  WorkerThread& operator=(const WorkerThread&) = delete;
  // Gives up a thread that still runs.
  ~WorkerThread();

  // `body` must own, or share, all that it uses: it may outlive this object. False when the
  // system gives no thread. Does not wait for the thread to run, which it may not do before the
  // caller has returned from loading a library.
  bool Start(std::function<void()> body);
  // Waits until the body has ended, at most `ms`. True as well without a thread, and when
  // the system killed it on the way out of the process.
  bool WaitMs(std::uint32_t ms);

 private:
  struct State;
  std::shared_ptr<State> state_;
};

}  // namespace companions
