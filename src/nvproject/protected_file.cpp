#include "nvproject/protected_file.h"

#include <filesystem>

#include "platform/console.h"
#include "platform/files.h"

namespace merovane::nvproject {

bool WriteProtectedFile(const std::string& path, std::span<const char> data) {
  const std::filesystem::path file = platform::PathFromText(path);
  if (platform::ReplaceFile(file, data)) return true;
  bool written = false;
  if (platform::IsReadOnly(file) && platform::SetReadOnly(file, false)) {
    written = platform::ReplaceFile(file, data);
    platform::SetReadOnly(file, true);
  }
  if (!written) ShowFileError("Can't open file " + path + "!");
  return written;
}

void ShowFileError(const std::string& text) { platform::ShowMessageBox(text, "Error"); }

std::string WithFileLineEnds(std::string_view text) {
  std::string result;
  result.reserve(text.size() + text.size() / 16);
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t newline = text.find('\n', at);
    if (newline == std::string_view::npos) {
      result.append(text.substr(at));
      break;
    }
    result.append(text.substr(at, newline - at)).append("\r\n");
    at = newline + 1;
  }
  return result;
}

}  // namespace merovane::nvproject
