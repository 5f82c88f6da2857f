// Writes project files, read-only ones too.
#pragma once

#include <span>
#include <string>

namespace merovane::nvproject {

// Replaces the file's content. A file that cannot be written loses its read-only
// attribute, if it has it, for the time of the write. When it still cannot be
// written, a message box says so and the old content stays whole.
bool WriteProtectedFile(const std::string& path, std::span<const char> data);

// A message box with the caption of all file errors.
void ShowFileError(const std::string& text);

}  // namespace merovane::nvproject
