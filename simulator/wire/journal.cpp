#include "wire/journal.h"

#include <algorithm>
#include <utility>

namespace handset {

void Journal::Add(Frame frame) {
  {
    const std::lock_guard lock(mutex_);
    frames_.push_back(std::move(frame));
    if (frames_.size() > capacity_) {
      frames_.pop_front();
      if (cursor_ > 0) --cursor_;
    }
  }
  arrived_.notify_all();
}

void Journal::AddReject(std::string reason) {
  const std::lock_guard lock(mutex_);
  rejects_.push_back(std::move(reason));
  if (rejects_.size() > capacity_) rejects_.pop_front();
}

std::optional<Frame> Journal::Next(std::uint8_t type, std::uint8_t subtype,
                                   std::chrono::milliseconds timeout) {
  const auto deadline = std::chrono::steady_clock::now() + timeout;
  std::unique_lock lock(mutex_);
  for (;;) {
    for (std::size_t i = cursor_; i < frames_.size(); ++i) {
      if (frames_[i].type != type || frames_[i].subtype != subtype) continue;
      cursor_ = i + 1;
      return frames_[i];
    }
    if (arrived_.wait_until(lock, deadline) == std::cv_status::timeout) {
      // One may have come with the last tick; what was looked at stays for other questions.
      if (std::none_of(frames_.begin() + static_cast<std::ptrdiff_t>(cursor_), frames_.end(),
                       [&](const Frame& f) { return f.type == type && f.subtype == subtype; })) {
        return std::nullopt;
      }
    }
  }
}

std::vector<Frame> Journal::Frames() const {
  const std::lock_guard lock(mutex_);
  return {frames_.begin(), frames_.end()};
}

std::size_t Journal::Count(std::uint8_t type, std::uint8_t subtype) const {
  const std::lock_guard lock(mutex_);
  return static_cast<std::size_t>(
      std::count_if(frames_.begin(), frames_.end(),
                    [&](const Frame& f) { return f.type == type && f.subtype == subtype; }));
}

std::vector<std::string> Journal::Rejects() const {
  const std::lock_guard lock(mutex_);
  return {rejects_.begin(), rejects_.end()};
}

void Journal::Clear() {
  const std::lock_guard lock(mutex_);
  frames_.clear();
  rejects_.clear();
  cursor_ = 0;
}

}  // namespace handset
