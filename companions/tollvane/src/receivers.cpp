#include "receivers.h"

#include <algorithm>

namespace tollvane {

void Receivers::Add(const companions::Receiver& receiver) {
  std::lock_guard lock(mutex_);
  std::erase_if(entries_,
                [&](const Entry& entry) { return entry.receiver.threadId == receiver.threadId; });
  entries_.push_back({receiver, chunks_});
}

void Receivers::Remove(std::uint32_t threadId) {
  std::lock_guard lock(mutex_);
  std::erase_if(entries_, [&](const Entry& entry) { return entry.receiver.threadId == threadId; });
}

void Receivers::Post(const void* chunk, std::uint32_t length, const companions::StopSignal& stop) {
  std::uint64_t number;
  {
    std::lock_guard lock(mutex_);
    number = ++chunks_;
  }
  for (std::uint32_t waitedMs = 0; !TryPost(number, chunk, length); ++waitedMs) {
    if (waitedMs == kPatienceMs) return GiveUp(number);
    if (stop.WaitMs(1)) return;
  }
}

bool Receivers::TryPost(std::uint64_t number, const void* chunk, std::uint32_t length) {
  std::lock_guard lock(mutex_);
  bool allTook = true;
  for (Entry& entry : entries_) {
    if (entry.lastChunk >= number) continue;
    if (companions::PostChunk(entry.receiver, chunk, length)) {
      entry.deaf = false;
    } else if (!entry.deaf) {
      allTook = false;
      continue;
    }
    entry.lastChunk = number;
  }
  return allTook;
}

void Receivers::GiveUp(std::uint64_t number) {
  std::lock_guard lock(mutex_);
  for (Entry& entry : entries_) {
    if (entry.lastChunk >= number) continue;
    entry.deaf = true;
    entry.lastChunk = number;
  }
}

}  // namespace tollvane
