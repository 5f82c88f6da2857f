// Manual-reset events. Any thread may call any operation.
#pragma once

#include <cstdint>
#include <memory>

namespace merovane::platform {

class Event {
 public:
  // Devices: an event that reads and writes of a ByteStream also wait for. Only such a one costs a
  // descriptor where the system has those.
  enum class For { Threads, Devices };

  // Throws when the system gives no event.
  explicit Event(For waits = For::Threads);
  ~Event();
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  // A thread that WaitMs woke may destroy the event at once, before Set has returned.
  void Set();
  void Reset();
  bool IsSet() const;
  // True when the event is set within the time; UINT32_MAX waits without end.
  bool WaitMs(std::uint32_t ms) const;
  // For the system's waits, of an event for devices: its handle, or a descriptor that is readable
  // while it is set.
  std::intptr_t Handle() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
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
