// The console that logs can be mirrored to, and message boxes.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace merovane::platform {

enum class ConsoleState { Off, Shown, Hidden };

// Gives the process a console (Windows), shows or hides it, or releases it again. A console that
// the process had before is kept. Elsewhere a shown console is standard output, a hidden one
// nothing.
void SetConsole(ConsoleState state);
// Does nothing while the console is off.
void WriteConsole(std::string_view text);

// Shows a box with an OK button and returns when it is closed; elsewhere than on Windows writes a
// line "caption: text" on standard error.
void ShowMessageBox(const std::string& text, const std::string& caption);

// Tests put their own in its place; null puts the system's back.
using MessageBoxFunction = std::function<void(const std::string& text, const std::string& caption)>;
void SetMessageBox(MessageBoxFunction function);
// The system's own, whatever stands in its place.
void ShowSystemMessageBox(const std::string& text, const std::string& caption);

}  // namespace merovane::platform
