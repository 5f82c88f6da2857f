// What the handset heard, for whoever asks from another thread.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "wire/wire.h"

namespace handset {

class Journal {
 public:
  explicit Journal(std::size_t capacity) : capacity_(capacity) {}

  void Add(Frame frame);
  void AddReject(std::string reason);

  // The first frame of that type and subtype that no earlier call has returned; frames before
  // it are passed over. Waits for one to arrive, and gives none when the time is up.
  std::optional<Frame> Next(std::uint8_t type, std::uint8_t subtype,
                            std::chrono::milliseconds timeout);

  std::vector<Frame> Frames() const;
  std::size_t Count(std::uint8_t type, std::uint8_t subtype) const;
  std::vector<std::string> Rejects() const;
  void Clear();

 private:
  const std::size_t capacity_;
  mutable std::mutex mutex_;
  std::condition_variable arrived_;
  std::deque<Frame> frames_;
  std::deque<std::string> rejects_;
  std::size_t cursor_ = 0;  // of Next
};

}  // namespace handset
