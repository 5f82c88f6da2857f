// One call of one export: its arguments, each in guarded memory of exactly its stated size.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "sweep/guarded_region.h"
#include "sweep/surface.h"

namespace merovane::sweep {

// What differs from the plainest call that the declaration takes.
struct Variation {
  std::size_t argument = 0;
  std::int64_t value = 0;
  bool null = false;
};

// The plainest call first.
std::vector<std::optional<Variation>> VariationsOf(const Export& which);

// The memory of a thread's calls, used again by each.
class Memory {
 public:
  std::span<std::byte> Buffer(std::size_t slot, std::size_t bytes);
  static bool Holds(std::size_t bytes) { return bytes <= GuardedRegion::kBytes; }

 private:
  std::deque<GuardedRegion> regions_;
};

class Call {
 public:
  // `durationMs` is for time limits that do not vary.
  Call(const Export& which, std::int32_t port, const std::optional<Variation>& variation,
       std::uint32_t durationMs, Memory& memory);

  // False when no buffer of the stated size can be made.
  bool CanBeMade() const { return canBeMade_; }
  // Whether the declaration has the argument that differs refused.
  bool MustBeRefused() const;
  // The time limits among the arguments, in all.
  std::uint32_t LimitMs() const;
  const Export& Of() const { return which_; }
  std::string Text() const;

  struct Outcome {
    std::int64_t result;
    double milliseconds;
    bool stackMoved;
    // What the callee changed that it may only read; empty: nothing.
    std::string_view changed;
  };
  // The call that this thread is in, for whoever reports a crash.
  static const Call* Running();
  Outcome Make();

 private:
  void PlaceMemory(const std::optional<Variation>& variation, Memory& memory);

  const Export& which_;
  std::vector<Word> words_;
  std::vector<std::span<std::byte>> buffers_;
  std::optional<Variation> variation_;
  bool canBeMade_ = true;
};

}  // namespace merovane::sweep
