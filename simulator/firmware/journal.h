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

// What the handset heard, for whoever asks from another thread.
class Journal {
 public:
  explicit Journal(size_t capacity) : capacity_(capacity) {}

  void Add(Frame frame);
  void AddReject(std::string reason);

  // The first frame of that type and subtype that no earlier call has returned; frames before
  // it are passed over. Waits for one to arrive, and gives none when the time is up.
  std::optional<Frame> Next(uint8_t type, uint8_t subtype, std::chrono::milliseconds timeout);

  std::vector<Frame> Frames() const;
  size_t Count(uint8_t type, uint8_t subtype) const;
  std::vector<std::string> Rejects() const;
  void Clear();

 private:
  const size_t capacity_;
  mutable std::mutex mutex_;
  std::condition_variable arrived_;
  std::deque<Frame> frames_;
  std::deque<std::string> rejects_;
  size_t cursor_ = 0;  // of Next
};

}  // namespace handset
