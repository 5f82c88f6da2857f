#include "receivers.h"

#include <algorithm>

namespace tollvane {

using platform::MutexLock;

void Receivers::Add(const companions::Receiver& receiver) {
  const MutexLock lock(mutex_);
  std::erase_if(entries_, [&](const Entry& entry) {
    return entry.receiver.thread.ThreadId() == receiver.thread.ThreadId() ||
           entry.receiver.thread.IsGone();
  });
  entries_.push_back({receiver, chunks_});
}

void Receivers::Remove(std::uint32_t threadId) {
  const MutexLock lock(mutex_);
  std::erase_if(entries_,
                [&](const Entry& entry) { return entry.receiver.thread.ThreadId() == threadId; });
}

void Receivers::Post(std::span<const std::byte> chunk, const platform::Event& stop) {
  std::uint64_t number;
  {
    const MutexLock lock(mutex_);
    number = ++chunks_;
  }
  for (std::uint32_t waitedMs = 0; !TryPost(number, chunk); ++waitedMs) {
    if (waitedMs == kPatienceMs) return GiveUp(number);
    if (stop.WaitMs(1)) return;
  }
}

bool Receivers::TryPost(std::uint64_t number, std::span<const std::byte> chunk) {
  const MutexLock lock(mutex_);
  bool allTook = true;
  std::erase_if(entries_, [&](Entry& entry) {
    if (entry.lastChunk >= number) return false;
    if (entry.receiver.Post(chunk)) {
      entry.deaf = false;
    } else if (entry.receiver.thread.IsGone()) {
      return true;
    } else if (!entry.deaf) {
      allTook = false;
      return false;
    }
    entry.lastChunk = number;
    return false;
  });
  return allTook;
}

void Receivers::GiveUp(std::uint64_t number) {
  const MutexLock lock(mutex_);
  for (Entry& entry : entries_) {
    if (entry.lastChunk >= number) continue;
    entry.deaf = true;
    entry.lastChunk = number;
  }
}

}  // namespace tollvane
