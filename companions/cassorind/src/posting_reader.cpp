#include "posting_reader.h"

#include <utility>

namespace cassorind {

namespace {

constexpr std::uint32_t kFullQueueRetryMs = 1;
// The thread answers the signal at once, unless the system is killing it or never let it run.
constexpr std::uint32_t kStopLimitMs = 1000;

}  // namespace

bool PostingReader::Start(std::shared_ptr<ByteStream> stream, const companions::Receiver& receiver,
                          std::shared_ptr<companions::ChunkArena> arena,
                          std::shared_ptr<companions::StopSignal> ended) {
  stop_ = std::make_shared<companions::StopSignal>();
  return thread_.Start([stream = std::move(stream), receiver, arena = std::move(arena),
                        ended = std::move(ended), stop = stop_] {
    for (;;) {
      const auto room = arena->Reserve();
      const std::int32_t count = stream->Read(room, UINT32_MAX, *stop);
      if (stop->IsSet()) return;
      if (count < 0) return ended->Set();
      arena->Commit(static_cast<std::size_t>(count));
      while (count > 0 &&
             !companions::PostChunk(receiver, room.data(), static_cast<std::uint32_t>(count))) {
        if (stop->WaitMs(kFullQueueRetryMs)) return;
      }
    }
  });
}

void PostingReader::Stop() {
  if (!stop_) return;
  stop_->Set();
  thread_.WaitMs(kStopLimitMs);
}

}  // namespace cassorind
