// The thread that posts what a device sends instead of keeping it for Read.
#pragma once

#include <memory>

#include "byte_stream.h"
#include "support/chunk_arena.h"
#include "support/message_post.h"
#include "support/worker_thread.h"

namespace cassorind {

class PostingReader {
 public:
  PostingReader() = default;
  PostingReader(const PostingReader&) = delete;
  PostingReader& operator=(const PostingReader&) = delete;
  ~PostingReader() { Stop(); }

  // Reads `stream` from now on; sets `ended` when the device is gone. False when the system gives
  // no thread.
  bool Start(std::shared_ptr<ByteStream> stream, const companions::Receiver& receiver,
             std::shared_ptr<companions::ChunkArena> arena,
             std::shared_ptr<companions::StopSignal> ended);
  // Nothing is posted after it has returned.
  void Stop();

 private:
  std::shared_ptr<companions::StopSignal> stop_;
  companions::WorkerThread thread_;
};

}  // namespace cassorind
