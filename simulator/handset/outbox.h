// Everything that leaves the handset, in order, each piece at its time. Faults act here.
#pragma once

#include <asio/io_context.hpp>
#include <asio/steady_timer.hpp>
#include <chrono>
#include <deque>
#include <functional>

#include "handset/faults.h"
#include "wire/wire.h"

namespace handset {

class Outbox {
 public:
  using Write = std::function<void(Bytes)>;
  using Cut = std::function<void()>;

  Outbox(asio::io_context& io, Faults& faults, double timeScale, Write write, Cut cut);

  // A whole frame that faults may touch; what they did comes back in words, for the transcript.
  std::string SendFrame(Bytes encoded, std::chrono::milliseconds delay, bool unsolicited);
  // Bytes as they are, that long after what is queued, in pieces of at most that many bytes
  // (0: whole) with a gap between.
  void SendRaw(const Bytes& bytes, std::chrono::milliseconds delay, std::size_t pieceBytes = 0,
               std::chrono::milliseconds gap = {});
  bool Empty() const { return queue_.empty() && held_.empty(); }
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;
  struct Piece {
    Bytes bytes;
    Clock::time_point due;
  };

  void PostPieces(const Bytes& bytes, Clock::time_point due, std::size_t pieceBytes,
                  std::chrono::milliseconds gap);
  // The queue is in order of time: nothing overtakes.
  void Post(Bytes bytes, Clock::time_point due);
  Clock::time_point NotBefore(Clock::duration delay) const;
  void Arm();
  void ReleaseHeld();
  Clock::duration Scaled(std::chrono::milliseconds delay) const;
  void CorruptBytes(Bytes& encoded, bool unsolicited);

  Faults& faults_;
  double timeScale_;
  Write write_;
  Cut cut_;
  asio::steady_timer timer_;
  asio::steady_timer holdTimer_;
  std::deque<Piece> queue_;
  Bytes held_;
};

}  // namespace handset
