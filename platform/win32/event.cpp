// Events of the system: no lock of ours stays held when the end of the process kills a thread.
#include "platform/event.h"

#include <new>

#include "platform/win32/windows_api.h"

namespace merovane::platform {

struct Event::State {
  UniqueHandle handle{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
};

Event::Event(For /*waits*/) : state_(std::make_unique<State>()) {
  if (!state_->handle) throw std::bad_alloc();
}
Event::~Event() = default;

void Event::Set() { SetEvent(state_->handle.get()); }

void Event::Reset() { ResetEvent(state_->handle.get()); }

bool Event::IsSet() const { return WaitForSingleObject(state_->handle.get(), 0) == WAIT_OBJECT_0; }

bool Event::WaitMs(std::uint32_t ms) const {
  static_assert(INFINITE == UINT32_MAX);
  return WaitForSingleObject(state_->handle.get(), ms) == WAIT_OBJECT_0;
}

std::intptr_t Event::Handle() const {
  return reinterpret_cast<std::intptr_t>(state_->handle.get());
}

bool CallerEvent::IsNull() const { return handle_ == 0; }

void CallerEvent::Set() const {
  if (!IsNull()) SetEvent(reinterpret_cast<HANDLE>(handle_));
}

void CallerEvent::Reset() const {
  if (!IsNull()) ResetEvent(reinterpret_cast<HANDLE>(handle_));
}

}  // namespace merovane::platform
