#include "platform/serial_ports.h"

#include <charconv>
#include <system_error>

namespace merovane::platform {

std::optional<std::int32_t> WholeNumber(std::string_view text, std::int32_t first,
                                        std::int32_t last) {
  std::int32_t number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  const bool padded = text.size() > 1 && text.front() == '0';
  if (error != std::errc{} || stop != end || padded || number < first || number > last) {
    return std::nullopt;
  }
  return number;
}

}  // namespace merovane::platform
