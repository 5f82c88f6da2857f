#include "commands/boot_mode.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/com_components.h"

namespace merovane::commands {

Result FindDownloadComponents() {
  constexpr std::array<std::string_view, 2> kNames = {"Vellacore.Vellanode", "Orrintal.Orrinobj"};
  const bool registered = std::ranges::all_of(kNames, platform::IsComponentRegistered);
  return registered ? Result::DownloadStart : Result::DownloadRegister;
}

}  // namespace merovane::commands
