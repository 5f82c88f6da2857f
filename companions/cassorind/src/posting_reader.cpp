#include "posting_reader.h"

#include <cstdint>
#include <utility>

namespace cassorind {
namespace {

constexpr std::uint32_t kFullQueueRetryMs = 1;
// The thread answers the event at once, unless the system is killing it or never let it run.
constexpr std::uint32_t kStopLimitMs = 1000;

}  // namespace

// What the thread uses, so that it may outlive the reader.
struct PostingReader::Work {
  std::shared_ptr<platform::ByteStream> stream;
  companions::Receiver receiver;
  std::shared_ptr<companions::ChunkArena> arena;
  std::shared_ptr<platform::Event> ended;
  platform::Event stop{platform::Event::For::Devices};
  std::span<const std::byte> unposted{};  // the thread's until it has ended

  void Run() {
    while (!stop.IsSet()) {
      const auto room = arena->Reserve();
      const std::int32_t count = stream->Read(room, UINT32_MAX, stop);
      if (count < 0) return ended->Set();
      arena->Commit(static_cast<std::size_t>(count));
      if (count > 0 && !Post(room.first(static_cast<std::size_t>(count)))) return;
    }
  }

  bool Post(std::span<const std::byte> chunk) {
    while (!receiver.Post(chunk)) {
      if (receiver.thread.IsGone() || stop.WaitMs(kFullQueueRetryMs)) {
        unposted = chunk;
        return false;
      }
    }
    return true;
  }
};

bool PostingReader::Start(std::shared_ptr<platform::ByteStream> stream,
                          const companions::Receiver& receiver,
                          std::shared_ptr<companions::ChunkArena> arena,
                          std::shared_ptr<platform::Event> ended) {
  work_ = std::shared_ptr<Work>(new Work{.stream = std::move(stream),
                                         .receiver = receiver,
                                         .arena = std::move(arena),
                                         .ended = std::move(ended)});
  return thread_.StartWithoutQueue([work = work_] { work->Run(); });
}

bool PostingReader::ReceiverIsGone() const { return work_ && work_->receiver.thread.IsGone(); }

std::span<const std::byte> PostingReader::Stop() {
  if (!work_) return {};
  work_->stop.Set();
  if (!thread_.WaitMs(kStopLimitMs)) return {};
  return std::exchange(work_->unposted, {});
}

}  // namespace cassorind
