// A request and what became of it, as a trace of calls tells it.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "link/frame_codec.h"

namespace merovane {

struct Exchange {
  using Clock = std::chrono::steady_clock;
  enum class Outcome : std::uint8_t {
    Open,  // nothing was waited for, so far or at all
    Answered,
    Refused,
    Silence,
  };

  FrameId request{};
  FrameId answer{};
  bool sent = false;  // false: what came without a request of its own
  Outcome outcome = Outcome::Open;
  // Of the payloads.
  std::uint32_t requestBytes = 0;
  std::uint32_t answerBytes = 0;
  Clock::time_point begun;
  Clock::time_point ended;
};

// The exchanges of one call, in their order.
class ExchangeList {
 public:
  // Of a call that never stops asking the first ones tell enough.
  static constexpr std::size_t kMost = 1000;

  void Sent(FrameId request, std::size_t payloadBytes) {
    if (Exchange* exchange = Next()) {
      exchange->request = request;
      exchange->sent = true;
      exchange->requestBytes = static_cast<std::uint32_t>(payloadBytes);
    }
  }
  void Came(FrameId answer, std::size_t payloadBytes, Exchange::Outcome outcome) {
    if (Exchange* exchange = IsOpen() ? &all_.back() : Next()) {
      exchange->answer = answer;
      exchange->answerBytes = static_cast<std::uint32_t>(payloadBytes);
      exchange->outcome = outcome;
      exchange->ended = Exchange::Clock::now();
    }
  }
  void NothingCame() {
    if (!IsOpen()) return;
    all_.back().outcome = Exchange::Outcome::Silence;
    all_.back().ended = Exchange::Clock::now();
  }

  const std::vector<Exchange>& All() const { return all_; }
  std::size_t LeftOut() const { return leftOut_; }

 private:
  bool IsOpen() const { return !all_.empty() && all_.back().outcome == Exchange::Outcome::Open; }
  Exchange* Next() {
    if (all_.size() >= kMost) {
      ++leftOut_;
      return nullptr;
    }
    try {
      Exchange& exchange = all_.emplace_back();
      exchange.begun = exchange.ended = Exchange::Clock::now();
      return &exchange;
    } catch (...) {
      // Want of memory costs the note, not the exchange.
      ++leftOut_;
      return nullptr;
    }
  }

  std::vector<Exchange> all_;
  std::size_t leftOut_ = 0;
};

}  // namespace merovane
