// Files by handles, and read-only by their attribute.
#include "platform/files.h"

#include <system_error>
#include <utility>

#include "platform/win32/windows_api.h"

namespace merovane::platform {

std::filesystem::path ExecutableDirectory() { return ModulePath(nullptr).parent_path(); }

std::filesystem::path TemporaryDirectory() {
  std::error_code error;
  std::filesystem::path directory = std::filesystem::temp_directory_path(error);
  return error ? ExecutableDirectory() : directory;
}

std::filesystem::path MakeTemporaryDirectory(const std::string& prefix) {
  const auto name = TemporaryDirectory() / (prefix + std::to_string(GetCurrentProcessId()) + "-");
  for (std::uint64_t number = GetTickCount64();; ++number) {
    std::filesystem::path path = name;
    path += std::to_string(number);
    if (CreateDirectoryW(path.c_str(), nullptr)) return path;
    if (GetLastError() != ERROR_ALREADY_EXISTS) return {};
  }
}

std::filesystem::path PathFromText(std::string_view text) { return WideFromNarrow(text); }

bool IsAbsolutePath(std::string_view text) {
  const auto isSeparator = [](char c) { return c == '\\' || c == '/'; };
  if (text.size() < 2) return false;
  return text[1] == ':' || (isSeparator(text[0]) && isSeparator(text[1]));
}

std::string TextFromPath(const std::filesystem::path& path) {
  return NarrowFromWide(path.native());
}

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE AsHandle(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

}  // namespace

bool AppendFile::Open(const std::filesystem::path& path) {
  Close();
  std::error_code error;
  if (path.has_parent_path()) std::filesystem::create_directories(path.parent_path(), error);
  handle_ = reinterpret_cast<std::intptr_t>(
      CreateFileW(path.c_str(), FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE, kShareAll,
                  nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  return IsOpen();
}

bool AppendFile::IsOpen() const { return AsHandle(handle_) != INVALID_HANDLE_VALUE; }

bool AppendFile::Write(std::span<const char> data) {
  return IsOpen() && WriteAll(AsHandle(handle_), data);
}

std::uint64_t AppendFile::Size() const {
  LARGE_INTEGER size{};
  if (!IsOpen() || !GetFileSizeEx(AsHandle(handle_), &size)) return 0;
  return static_cast<std::uint64_t>(size.QuadPart);
}

void AppendFile::Close() {
  if (IsOpen()) CloseHandle(AsHandle(std::exchange(handle_, -1)));
}

bool SetReadOnly(const std::filesystem::path& path, bool readOnly) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return false;
  const DWORD wanted = readOnly ? attributes | FILE_ATTRIBUTE_READONLY
                                : attributes & ~DWORD{FILE_ATTRIBUTE_READONLY};
  return SetFileAttributesW(path.c_str(), wanted != 0 ? wanted : FILE_ATTRIBUTE_NORMAL) != 0;
}

bool IsReadOnly(const std::filesystem::path& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

}  // namespace merovane::platform
