// A channel between its open and its close.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "device.h"
#include "platform/mutex.h"
#include "posting_reader.h"

namespace cassorind {

// Any thread may call any operation.
class Session {
 public:
  explicit Session(std::shared_ptr<platform::ByteStream> stream) : stream_(std::move(stream)) {}

  // As CassorindChannel's operations.
  std::int32_t Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs);
  std::size_t Write(std::span<const std::byte> data);
  bool Clear();

  // Posts from now on what the device sends. False when the system gives no thread.
  bool StartPosting(const companions::Receiver& receiver,
                    std::shared_ptr<companions::ChunkArena> arena);
  // What was not posted by then is read.
  void StopPosting();

  // Makes every read and write return at once, and ends posting.
  void End();

 private:
  std::size_t TakeKept(std::span<std::byte> buffer);
  bool PostsToAnyone();
  void Stop() MEROVANE_REQUIRES(postingMutex_);

  const std::shared_ptr<platform::ByteStream> stream_;
  // Set at the close or when the device is gone: there is no reading and writing after either.
  const std::shared_ptr<platform::Event> ended_ =
      std::make_shared<platform::Event>(platform::Event::For::Devices);

  platform::Mutex readMutex_;
  platform::Mutex keptMutex_;
  // What was taken from the system in large pieces and not yet handed out. The bytes belong to the
  // thread that holds readMutex_ while there are none to hand out.
  std::array<std::byte, std::size_t{16} * 1024> fetched_;
  std::span<const std::byte> fetchedLeft_ MEROVANE_GUARDED_BY(keptMutex_);
  // What came after that and found no receiver.
  std::vector<std::byte> unposted_ MEROVANE_GUARDED_BY(keptMutex_);

  platform::Mutex writeMutex_;

  platform::Mutex postingMutex_;
  std::unique_ptr<PostingReader> reader_ MEROVANE_GUARDED_BY(postingMutex_);
  std::atomic<bool> posting_{false};
};

}  // namespace cassorind
