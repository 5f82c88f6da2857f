#include "platform/device_handle.h"

#include "platform/win32/windows_api.h"

namespace merovane::platform {

std::intptr_t SecondHandle(std::intptr_t device) {
  HANDLE second = INVALID_HANDLE_VALUE;
  DuplicateHandle(GetCurrentProcess(), reinterpret_cast<HANDLE>(device), GetCurrentProcess(),
                  &second, 0, FALSE, DUPLICATE_SAME_ACCESS);
  return reinterpret_cast<std::intptr_t>(second);
}

std::size_t UnsentBytes(std::intptr_t device) {
  DWORD errors = 0;
  COMSTAT state{};
  if (!ClearCommError(reinterpret_cast<HANDLE>(device), &errors, &state)) return 0;
  return state.cbOutQue;
}

}  // namespace merovane::platform
