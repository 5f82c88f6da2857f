#include "handset/outbox.h"

#include <algorithm>
#include <utility>

namespace handset {

using std::chrono::milliseconds;

Outbox::Outbox(asio::io_context& io, Faults& faults, double timeScale, Write write, Cut cut)
    : faults_(faults),
      timeScale_(timeScale),
      write_(std::move(write)),
      cut_(std::move(cut)),
      timer_(io),
      holdTimer_(io) {}

std::string Outbox::SendFrame(Bytes encoded, milliseconds delay, bool unsolicited) {
  const auto strikes = [&](FaultKind kind) { return faults_.Strikes(kind, unsolicited); };
  std::string done;
  if (strikes(FaultKind::Disconnect)) {
    cut_();
    return "disconnected";
  }
  if (strikes(FaultKind::Drop)) return "dropped";
  if (strikes(FaultKind::Corrupt)) {
    CorruptBytes(encoded, unsolicited);
    done += "corrupted ";
  }
  if (strikes(FaultKind::Duplicate)) {
    const auto once = static_cast<std::ptrdiff_t>(encoded.size());
    encoded.reserve(2 * encoded.size());
    std::copy_n(encoded.begin(), once, std::back_inserter(encoded));
    done += "duplicated ";
  }
  if (strikes(FaultKind::Delay)) {
    delay += faults_.Rule(FaultKind::Delay).time;
    done += "delayed ";
  }
  const bool hold = strikes(FaultKind::Merge);
  if (hold || !held_.empty()) {
    held_.insert(held_.end(), encoded.begin(), encoded.end());
    if (!hold) {
      ReleaseHeld();
      return done + "merged";
    }
    holdTimer_.expires_after(Scaled(faults_.Rule(FaultKind::Merge).time));
    holdTimer_.async_wait([this](const asio::error_code& error) {
      if (!error) ReleaseHeld();
    });
    return done + "held";
  }
  if (strikes(FaultKind::Split)) {
    const FaultRule& rule = faults_.Rule(FaultKind::Split);
    const std::size_t pieceBytes = (encoded.size() + rule.count - 1) / rule.count;
    PostPieces(encoded, NotBefore(Scaled(delay)), pieceBytes, rule.time);
    return done + "split";
  }
  Post(std::move(encoded), NotBefore(Scaled(delay)));
  return done;
}

void Outbox::SendRaw(const Bytes& bytes, milliseconds delay, std::size_t pieceBytes,
                     milliseconds gap) {
  const auto start = queue_.empty() ? Clock::now() : queue_.back().due;
  if (pieceBytes == 0) pieceBytes = std::max<std::size_t>(bytes.size(), 1);
  PostPieces(bytes, start + Scaled(delay), pieceBytes, gap);
}

void Outbox::PostPieces(const Bytes& bytes, Clock::time_point due, std::size_t pieceBytes,
                        milliseconds gap) {
  for (std::size_t start = 0; start < bytes.size(); start += pieceBytes) {
    const auto first = bytes.begin() + static_cast<std::ptrdiff_t>(start);
    const auto count = static_cast<std::ptrdiff_t>(std::min(pieceBytes, bytes.size() - start));
    Post(Bytes(first, first + count), due);
    due += Scaled(gap);
  }
}

void Outbox::Clear() {
  queue_.clear();
  held_.clear();
  timer_.cancel();
  holdTimer_.cancel();
}

Outbox::Clock::time_point Outbox::NotBefore(Clock::duration delay) const {
  const auto due = Clock::now() + delay;
  return queue_.empty() ? due : std::max(due, queue_.back().due);
}

void Outbox::Post(Bytes bytes, Clock::time_point due) {
  if (queue_.empty() && due <= Clock::now()) {
    write_(std::move(bytes));
    return;
  }
  queue_.push_back({std::move(bytes), due});
  if (queue_.size() == 1) Arm();
}

void Outbox::Arm() {
  timer_.expires_at(queue_.front().due);
  timer_.async_wait([this](const asio::error_code& error) {
    if (error || queue_.empty()) return;
    if (queue_.front().due > Clock::now()) return Arm();
    Bytes bytes = std::move(queue_.front().bytes);
    queue_.pop_front();
    write_(std::move(bytes));
    if (!queue_.empty()) Arm();
  });
}

void Outbox::ReleaseHeld() {
  holdTimer_.cancel();
  Post(std::exchange(held_, {}), NotBefore({}));
}

Outbox::Clock::duration Outbox::Scaled(milliseconds delay) const {
  return std::chrono::duration_cast<Clock::duration>(delay * timeScale_);
}

void Outbox::CorruptBytes(Bytes& encoded, bool unsolicited) {
  // Not the flags: a frame without them is a dropped one.
  const auto inner = static_cast<std::uint32_t>(encoded.size() - 2);
  for (unsigned i = 0; i < faults_.Rule(FaultKind::Corrupt).count; ++i) {
    const std::uint32_t position = 1 + faults_.Draw(inner, unsolicited);
    encoded[position] ^= static_cast<std::uint8_t>(1 + faults_.Draw(255, unsolicited));
  }
}

}  // namespace handset
