// The Windows headers, and handles that close themselves.
#pragma once

#include <windows.h>

#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>

// Names of ours that the headers turn into others.
#undef ReplaceFile
#undef WriteConsole

namespace merovane::platform {

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
// Null is none: wrap what CreateFileW gives with FileHandle.
using UniqueHandle = std::unique_ptr<void, HandleCloser>;

inline UniqueHandle FileHandle(HANDLE handle) {
  return UniqueHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

bool WriteAll(HANDLE file, std::span<const char> data);

// Between the ANSI code page and UTF-16.
std::wstring WideFromNarrow(std::string_view text);
std::string NarrowFromWide(std::wstring_view text);

// The file that a module was loaded from; null is the host program.
std::filesystem::path ModulePath(HMODULE module);

}  // namespace merovane::platform
