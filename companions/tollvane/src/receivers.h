// The threads that get every chunk from the server.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "common/receiver.h"
#include "platform/event.h"
#include "platform/mutex.h"

namespace tollvane {

namespace platform = merovane::platform;

// Any thread may call Add and Remove, one at a time Post.
class Receivers {
 public:
  // A thread has one registration; a second one takes its place. Those whose threads are gone are
  // dropped.
  void Add(const companions::Receiver& receiver);
  // Nothing is posted to the thread after this.
  void Remove(std::uint32_t threadId);

  // Posts to all, waiting for those whose queue is full until `stop` is set or they have taken
  // nothing for kPatienceMs. One that did not take a chunk misses it, and is not waited for until
  // it takes one again.
  void Post(std::span<const std::byte> chunk, const platform::Event& stop);

 private:
  static constexpr std::uint32_t kPatienceMs = 1000;

  struct Entry {
    companions::Receiver receiver;
    std::uint64_t lastChunk;  // the number of the last one it took or missed
    bool deaf = false;
  };

  // True when every receiver took chunk `number`, or is known not to.
  bool TryPost(std::uint64_t number, std::span<const std::byte> chunk);
  void GiveUp(std::uint64_t number);

  platform::Mutex mutex_;
  std::vector<Entry> entries_ MEROVANE_GUARDED_BY(mutex_);
  std::uint64_t chunks_ MEROVANE_GUARDED_BY(mutex_) = 0;
};

}  // namespace tollvane
