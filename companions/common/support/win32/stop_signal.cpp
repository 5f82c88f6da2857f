#include "support/stop_signal.h"

#include <windows.h>

#include <system_error>

namespace companions {

StopSignal::StopSignal()
    : handle_(reinterpret_cast<std::intptr_t>(::CreateEventW(nullptr, TRUE, FALSE, nullptr))) {
  if (handle_ == 0) {
    throw std::system_error(static_cast<int>(::GetLastError()), std::system_category());
  }
}

StopSignal::~StopSignal() { ::CloseHandle(reinterpret_cast<HANDLE>(handle_)); }

void StopSignal::Set() {
  set_.store(true, std::memory_order_release);
  ::SetEvent(reinterpret_cast<HANDLE>(handle_));
}

bool StopSignal::WaitMs(std::uint32_t ms) const {
  ::WaitForSingleObject(reinterpret_cast<HANDLE>(handle_), ms);
  return IsSet();
}

}  // namespace companions
