#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "radio/front_end.h"

namespace handset {

// The test instrument at the antenna connector. On a line it is a box of its own; at a desk it
// is asked through AT commands of the simulated handset:
//   AT+SIMGEN=<1/100 dBm>      sets the generator's level, on the channel to which the handset is
//   tuned AT+SIMTEMP=<1/10 degrees>  sets the temperature AT+SIMFREQ? "+SIMFREQ:<frequency error in
//   1/100 Hz>" AT+SIMPOWER?               "+SIMPOWER:<transmit power in 1/100 dBm>"
//   AT+SIMTRUTH=<band>         "+SIMTRUTH:<centre DAC, 1/100>,<Hz per step, 1/1000>,<loss, 1/1000
//   dB>,
//                              <gain at word 0, 1/1000 dB>,<gain per word, 1/1000000 dB>"
//   AT+SIMFACTOR=<band>,<group>,<level>  "+SIMFACTOR:<true step factor, 1/100>"
//   AT+SIMTRUERX=<band>,<group>          "+SIMTRUERX:<true receive compensation, 1/100 of a quarter
//   dB>"
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
