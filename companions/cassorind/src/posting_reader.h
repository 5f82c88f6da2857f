// The thread that posts what a device sends instead of keeping it for Read.
#pragma once

#include <cstddef>
#include <memory>
#include <span>

#include "common/chunk_arena.h"
#include "common/receiver.h"
#include "device.h"
#include "platform/event.h"
#include "platform/thread.h"

namespace cassorind {

// One thread at a time may call the operations.
class PostingReader {
 public:
  PostingReader() = default;
  PostingReader(const PostingReader&) = delete;
  PostingReader& operator=(const PostingReader&) = delete;
  ~PostingReader() { Stop(); }

  // Reads `stream` from now on; sets `ended` when the device is gone. Ends by itself when the
  // receiver's thread is gone. False when the system gives no thread.
  bool Start(std::shared_ptr<platform::ByteStream> stream, const companions::Receiver& receiver,
             std::shared_ptr<companions::ChunkArena> arena, std::shared_ptr<platform::Event> ended);
  bool ReceiverIsGone() const;
  // Nothing is posted after it has returned. Gives what was read and not taken, in the arena.
  std::span<const std::byte> Stop();

 private:
  struct Work;

  std::shared_ptr<Work> work_;
  platform::Thread thread_;
};

}  // namespace cassorind
