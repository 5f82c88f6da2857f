// The test instrument at the antenna connector. On a line it is a box of its own; at a desk it
// is asked through AT commands of the simulated handset, which README.md lists.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "parts/radio/front_end.h"

namespace handset {

class Instrument {
 public:
  Instrument(FrontEnd& frontEnd, const RadioConstants& constants)
      : frontEnd_(frontEnd), constants_(constants) {}

  // The line that answers a command of the instrument's, empty for none; nothing when the command
  // is wrong or there is nothing to measure.
  std::optional<std::string> Ask(std::string_view command);

 private:
  FrontEnd& frontEnd_;
  const RadioConstants& constants_;
};

}  // namespace handset
