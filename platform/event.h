// Manual-reset events.
#pragma once

#include <cstdint>
#include <memory>

namespace merovane::platform {

class Event {
 public:
  Event();
  ~Event();
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  void Set();
  void Reset();
  bool IsSet() const;
  // True when the event is set within the time; UINT32_MAX waits without end.
  bool WaitMs(std::uint32_t ms);

 private:
  struct Wait;
  std::unique_ptr<Wait> wait_;
};

// An event that the caller of the library owns: a Win32 event handle, elsewhere
// an eventfd descriptor. 0 and, elsewhere, negative values count as null.
class CallerEvent {
 public:
  CallerEvent() = default;
  explicit CallerEvent(std::intptr_t handle) : handle_(handle) {}
  bool IsNull() const;
  void Set() const;
  void Reset() const;

 private:
  std::intptr_t handle_ = 0;
};

}  // namespace merovane::platform
