// Misbehaviour on demand. Answers and unsolicited frames draw from streams of their own, since
// the number of unsolicited ones depends on the clock and would make runs differ.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "firmware/random.h"

namespace handset {

enum class FaultKind {
  Drop,        // an outgoing frame is lost
  Duplicate,   // it is sent twice
  Corrupt,     // bytes between its flags are changed
  Delay,       // it and what follows it come late
  Split,       // it arrives in pieces
  Merge,       // it is held back and written together with the next
  Refuse,      // a command is refused instead of carried out
  Silent,      // a command is not heard at all
  Disconnect,  // the line is cut instead of sending a frame
};
inline constexpr std::size_t kFaultKinds = 9;

struct FaultRule {
  double probability = 0;
  unsigned next = 0;  // strikes this many frames for certain, before probability counts
  std::chrono::milliseconds time{0};
  unsigned count = 0;
};

class Faults {
 public:
  explicit Faults(std::uint64_t seed);

  // "drop=0.1", "split=1,pieces:4,gap:5", "delay=next:2,ms:300", "corrupt=0.05,bytes:2",
  // "merge=next:1,hold:50", "refuse=next:1", "silent=1", "disconnect=next:1", "none".
  // Throws std::invalid_argument when it does not read so.
  void Set(std::string_view text);

  bool Strikes(FaultKind kind, bool unsolicited = false);
  bool Always(FaultKind kind) const { return Rule(kind).probability >= 1; }
  const FaultRule& Rule(FaultKind kind) const { return rules_[static_cast<std::size_t>(kind)]; }
  std::uint32_t Draw(std::uint32_t bound, bool unsolicited = false);
  std::string Describe() const;

 private:
  std::array<FaultRule, kFaultKinds> rules_{};
  std::vector<Random> answerStreams_;
  std::vector<Random> unsolicitedStreams_;
};

}  // namespace handset
