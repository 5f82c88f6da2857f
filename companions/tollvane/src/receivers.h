// The threads that get every chunk from the server.
#pragma once

#include <cstdint>
#include <mutex>
#include <vector>

#include "support/message_post.h"
#include "support/stop_signal.h"

namespace tollvane {

class Receivers {
 public:
  // A thread has one registration; a second one takes its place.
  void Add(const companions::Receiver& receiver);
  // Nothing is posted to the thread after this.
  void Remove(std::uint32_t threadId);

  // Posts to all, waiting for those whose queue is full until `stop` is set or they have taken
  // nothing for kPatienceMs. One that did not take a chunk misses it, and is not waited for until
  // it takes one again. One thread at a time may call it.
  void Post(const void* chunk, std::uint32_t length, const companions::StopSignal& stop);

 private:
  static constexpr std::uint32_t kPatienceMs = 1000;

  struct Entry {
    companions::Receiver receiver;
    std::uint64_t lastChunk;  // the number of the last one it took or missed
    bool deaf = false;
  };

  // True when every receiver took chunk `number`, or is known not to.
  bool TryPost(std::uint64_t number, const void* chunk, std::uint32_t length);
  void GiveUp(std::uint64_t number);

  std::mutex mutex_;
  std::vector<Entry> entries_;
  std::uint64_t chunks_ = 0;
};

}  // namespace tollvane
