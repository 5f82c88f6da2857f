#include "parts/radio/instrument.h"

#include <charconv>
#include <cmath>
#include <initializer_list>
#include <vector>

namespace handset {
namespace {

// Whole numbers between commas; nothing when the text holds anything else.
std::optional<std::vector<int>> Numbers(std::string_view text) {
  std::vector<int> numbers;
  const char* at = text.data();
  const char* const end = at + text.size();
  for (;;) {
    int number = 0;
    const auto [next, error] = std::from_chars(at, end, number);
    if (error != std::errc()) return std::nullopt;
    numbers.push_back(number);
    if (next == end) return numbers;
    if (*next != ',') return std::nullopt;
    at = next + 1;
  }
}

std::string Line(const char* name, std::initializer_list<double> values) {
  std::string line = std::string(name) + ":";
  const char* separator = "";
  for (const double value : values) {
    line += separator + std::to_string(std::lround(value));
    separator = ",";
  }
  return line;
}

}  // namespace

std::optional<std::string> Instrument::Ask(std::string_view command) {
  if (command == "AT+SIMFREQ?") {
    const auto error = frontEnd_.FrequencyError();
    return error ? std::optional(Line("+SIMFREQ", {100 * *error})) : std::nullopt;
  }
  if (command == "AT+SIMPOWER?") {
    const auto power = frontEnd_.Power();
    return power ? std::optional(Line("+SIMPOWER", {100 * *power})) : std::nullopt;
  }
  const std::size_t equals = command.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  const std::string_view name = command.substr(0, equals);
  const auto numbers = Numbers(command.substr(equals + 1));
  if (!numbers) return std::nullopt;
  const std::vector<int>& n = *numbers;
  if (name == "AT+SIMGEN" && n.size() == 1) {
    frontEnd_.SetInput(n[0] / 100.0);
    return "";
  }
  if (name == "AT+SIMTEMP" && n.size() == 1) {
    frontEnd_.SetTemperature(n[0] / 10.0);
    return "";
  }
  const BandConstants* band = constants_.Band(static_cast<std::uint32_t>(n[0]));
  if (!band) return std::nullopt;
  if (name == "AT+SIMTRUTH" && n.size() == 1) {
    return Line("+SIMTRUTH",
                {100 * constants_.centreDac, 1000 * constants_.hzPerStep,
                 1000 * band->receiveLossDb, 1000 * band->gainOffsetDb, 1e6 * band->gainStepDb});
  }
  const auto group = n.size() > 1 ? static_cast<std::size_t>(n[1]) : kChannelGroups;
  if (group >= kChannelGroups) return std::nullopt;
  const std::uint16_t channel = MiddleOfGroup(*band, group);
  if (name == "AT+SIMFACTOR" && n.size() == 3 && n[2] >= 0 && n[2] < static_cast<int>(kLevels)) {
    const double target = TargetPowerDbm(*band, static_cast<std::size_t>(n[2]));
    return Line("+SIMFACTOR", {100 * TrueFactor(*band, channel, target)});
  }
  if (name == "AT+SIMTRUERX" && n.size() == 2) {
    return Line("+SIMTRUERX", {-400 * ReceivedDbm(*band, channel, 0)});
  }
  return std::nullopt;
}

}  // namespace handset
