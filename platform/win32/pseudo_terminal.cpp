#include "platform/pseudo_terminal.h"

namespace merovane::platform {

std::unique_ptr<PseudoTerminal> MakePseudoTerminal(std::string& whyNot) {
  whyNot = "there are no pseudo-terminals on Windows";
  return nullptr;
}

}  // namespace merovane::platform
