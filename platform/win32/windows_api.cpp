#include "platform/win32/windows_api.h"

#include <algorithm>
#include <cstddef>

namespace merovane::platform {

bool WriteAll(HANDLE file, std::span<const char> data) {
  constexpr std::size_t kMostAtOnce = 1U << 30;
  while (!data.empty()) {
    DWORD written = 0;
    const auto count = static_cast<DWORD>(std::min(data.size(), kMostAtOnce));
    if (!WriteFile(file, data.data(), count, &written, nullptr) || written == 0) return false;
    data = data.subspan(written);
  }
  return true;
}

std::wstring WideFromNarrow(std::string_view text) {
  const int length = static_cast<int>(text.size());
  const int needed = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), needed);
  return wide;
}

std::string NarrowFromWide(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const int needed =
      WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.data(), needed, nullptr, nullptr);
  return narrow;
}

std::filesystem::path ModulePath(HMODULE module) {
  constexpr std::size_t kLongestPath = 32768;
  for (std::wstring path(MAX_PATH, L'\0');; path.resize(path.size() * 2)) {
    const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) return {};
    if (length < path.size()) return path.substr(0, length);
    if (path.size() > kLongestPath) return {};
  }
}

}  // namespace merovane::platform
