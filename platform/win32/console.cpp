// A console window of the process, and message boxes.
#include "platform/console.h"

#include "platform/mutex.h"
#include "platform/win32/windows_api.h"

namespace merovane::platform {
namespace {

struct Console {
  Mutex mutex;
  bool allocated MEROVANE_GUARDED_BY(mutex) = false;
  bool hidden MEROVANE_GUARDED_BY(mutex) = false;
  UniqueHandle output MEROVANE_GUARDED_BY(mutex);
};

Console& TheConsole() {
  static Console console;
  return console;
}

void Show(bool visible) {
  if (HWND window = GetConsoleWindow()) ShowWindow(window, visible ? SW_SHOW : SW_HIDE);
}

void Release(Console& console) MEROVANE_REQUIRES(console.mutex) {
  console.output.reset();
  if (console.allocated) {
    FreeConsole();
  } else if (console.hidden) {
    Show(true);
  }
  console.allocated = console.hidden = false;
}

}  // namespace

void SetConsole(ConsoleState state) {
  Console& console = TheConsole();
  const MutexLock lock(console.mutex);
  if (state == ConsoleState::Off) {
    Release(console);
    return;
  }
  // Fails when the process has one already.
  if (AllocConsole()) {
    console.allocated = true;
    // Closing the window would end the host program.
    if (HWND window = GetConsoleWindow()) {
      DeleteMenu(GetSystemMenu(window, FALSE), SC_CLOSE, MF_BYCOMMAND);
    }
  }
  if (!console.output) {
    console.output = FileHandle(CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                            OPEN_EXISTING, 0, nullptr));
  }
  console.hidden = state == ConsoleState::Hidden;
  Show(!console.hidden);
}

void WriteConsole(std::string_view text) {
  Console& console = TheConsole();
  const MutexLock lock(console.mutex);
  if (!console.output) return;
  const std::wstring wide = WideFromNarrow(text);
  DWORD written = 0;
  WriteConsoleW(console.output.get(), wide.data(), static_cast<DWORD>(wide.size()), &written,
                nullptr);
}

void ShowSystemMessageBox(const std::string& text, const std::string& caption) {
  MessageBoxW(nullptr, WideFromNarrow(text).c_str(), WideFromNarrow(caption).c_str(), MB_OK);
}

}  // namespace merovane::platform
