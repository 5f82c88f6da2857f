// The console is standard output, a message box a line on standard error.
#include "platform/console.h"

#include <atomic>
#include <cstdio>

namespace merovane::platform {
namespace {

std::atomic<ConsoleState> consoleState{ConsoleState::Off};

}  // namespace

void SetConsole(ConsoleState state) { consoleState = state; }

void WriteConsole(std::string_view text) {
  if (consoleState != ConsoleState::Shown) return;
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fflush(stdout);
}

void ShowSystemMessageBox(const std::string& text, const std::string& caption) {
  std::fprintf(stderr, "%s: %s\n", caption.c_str(), text.c_str());
}

}  // namespace merovane::platform
