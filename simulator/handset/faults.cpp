#include "handset/faults.h"

#include <charconv>
#include <sstream>
#include <stdexcept>

namespace handset {
namespace {

struct FaultName {
  std::string_view name;
  std::string_view timeKey;
  unsigned defaultTimeMs;
  std::string_view countKey;
  unsigned defaultCount;
};

// In the order of FaultKind.
constexpr std::array<FaultName, kFaultKinds> kNames{{
    {"drop", "", 0, "", 0},
    {"duplicate", "", 0, "", 0},
    {"corrupt", "", 0, "bytes", 1},
    {"delay", "ms", 200, "", 0},
    {"split", "gap", 5, "pieces", 3},
    {"merge", "hold", 50, "", 0},
    {"refuse", "", 0, "", 0},
    {"silent", "", 0, "", 0},
    {"disconnect", "", 0, "", 0},
}};

// Says what would have been one.
[[noreturn]] void Refuse(std::string_view text) {
  std::string known;
  for (const FaultName& each : kNames) {
    known += ", " + std::string(each.name);
    for (const std::string_view key : {each.timeKey, each.countKey}) {
      if (!key.empty()) known += "[," + std::string(key) + ":N]";
    }
  }
  throw std::invalid_argument("not a fault: " + std::string(text) +
                              " (name=probability, name=next:N or none; the names are" +
                              known.substr(1) + ")");
}

unsigned ParseNumber(std::string_view digits, std::string_view text) {
  unsigned value = 0;
  auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc{} || end != digits.data() + digits.size()) Refuse(text);
  return value;
}

double ParseProbability(std::string_view digits, std::string_view text) {
  std::istringstream stream{std::string(digits)};
  stream.imbue(std::locale::classic());
  double value = -1;
  if (!(stream >> value) || !stream.eof() || value < 0 || value > 1) Refuse(text);
  return value;
}

std::string_view CutField(std::string_view& rest) {
  const std::size_t comma = rest.find(',');
  std::string_view field = rest.substr(0, comma);
  rest = comma == std::string_view::npos ? "" : rest.substr(comma + 1);
  return field;
}

}  // namespace

Faults::Faults(std::uint64_t seed) {
  for (std::size_t kind = 0; kind < kFaultKinds; ++kind) {
    answerStreams_.emplace_back(seed, 2 * kind + 1);
    unsolicitedStreams_.emplace_back(seed, 2 * kind + 2);
  }
}

void Faults::Set(std::string_view text) {
  if (text == "none") {
    rules_.fill({});
    return;
  }
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos) Refuse(text);
  std::size_t kind = 0;
  while (kind < kFaultKinds && kNames[kind].name != text.substr(0, equals)) ++kind;
  if (kind == kFaultKinds) Refuse(text);

  const FaultName& name = kNames[kind];
  FaultRule rule;
  rule.time = std::chrono::milliseconds(name.defaultTimeMs);
  rule.count = name.defaultCount;
  std::string_view rest = text.substr(equals + 1);
  std::string_view first = CutField(rest);
  if (first.starts_with("next:")) {
    rule.next = ParseNumber(first.substr(5), text);
  } else {
    rule.probability = ParseProbability(first, text);
  }
  while (!rest.empty()) {
    std::string_view field = CutField(rest);
    const std::size_t colon = field.find(':');
    if (colon == 0 || colon == std::string_view::npos) Refuse(text);
    const std::string_view key = field.substr(0, colon);
    const unsigned value = ParseNumber(field.substr(colon + 1), text);
    if (key == name.timeKey) {
      rule.time = std::chrono::milliseconds(value);
    } else if (key == name.countKey && value > 0) {
      rule.count = value;
    } else {
      Refuse(text);
    }
  }
  rules_[kind] = rule;
}

bool Faults::Strikes(FaultKind kind, bool unsolicited) {
  FaultRule& rule = rules_[static_cast<std::size_t>(kind)];
  if (rule.next > 0) {
    if (unsolicited) return false;
    --rule.next;
    return true;
  }
  if (rule.probability <= 0) return false;
  auto& streams = unsolicited ? unsolicitedStreams_ : answerStreams_;
  return streams[static_cast<std::size_t>(kind)].Uniform() < rule.probability;
}

std::uint32_t Faults::Draw(std::uint32_t bound, bool unsolicited) {
  auto& streams = unsolicited ? unsolicitedStreams_ : answerStreams_;
  return streams[static_cast<std::size_t>(FaultKind::Corrupt)].Below(bound);
}

std::string Faults::Describe() const {
  std::ostringstream text;
  for (std::size_t kind = 0; kind < kFaultKinds; ++kind) {
    const FaultRule& rule = rules_[kind];
    if (rule.next == 0 && rule.probability <= 0) continue;
    if (text.tellp() > 0) text << ' ';
    text << kNames[kind].name << '=';
    if (rule.next > 0) {
      text << "next:" << rule.next;
    } else {
      text << rule.probability;
    }
  }
  const std::string described = text.str();
  return described.empty() ? "none" : described;
}

}  // namespace handset
