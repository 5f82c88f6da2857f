// The text of an AT command.
#pragma once

namespace merovane::commands {

// Whether the text and the line end that is added to it fit into the buffer that commands are
// built in.
bool FitsWithLineEnd(const char* command);

}  // namespace merovane::commands
