// Paths as project files write them. Both separators count, on every system.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace merovane::nvproject {

constexpr std::string_view kSeparators = "\\/";

// The path seen from the directory of `file`; an absolute one as it is. None when
// `file` has no directory part to join it with.
inline std::optional<std::string> JoinPath(std::string_view file, std::string_view path) {
  if (platform::IsAbsolutePath(path)) return std::string(path);
  const std::size_t separator = file.find_last_of(kSeparators);
  if (separator == std::string_view::npos) return std::nullopt;
  return std::string(file.substr(0, separator + 1)).append(path);
}

}  // namespace merovane::nvproject
