// A channel between its open and its close.
#pragma once

#include <array>
#include <atomic>
#include <memory>
#include <mutex>

#include "byte_stream.h"
#include "posting_reader.h"

namespace cassorind {

class Session {
 public:
  explicit Session(std::shared_ptr<ByteStream> stream) : stream_(std::move(stream)) {}

  // As CassorindChannel's operations; any thread may call any of them.
  std::int32_t Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs);
  std::size_t Write(std::span<const std::byte> data);
  bool Clear();

  // Posts from now on what the device sends. False when the system gives no thread.
  bool StartPosting(const companions::Receiver& receiver,
                    std::shared_ptr<companions::ChunkArena> arena);
  void StopPosting();

  // Makes every read and write return at once, and ends posting.
  void End();

 private:
  std::int32_t TakeFetched(std::span<std::byte> buffer);

  const std::shared_ptr<ByteStream> stream_;
  // Set at the close or when the device is gone: there is no reading and writing after either.
  const std::shared_ptr<companions::StopSignal> ended_ = std::make_shared<companions::StopSignal>();

  // What was taken from the system in large pieces and not yet handed out. The bytes
  // belong to the thread that holds readMutex_ while there are none to hand out.
  std::mutex readMutex_;
  std::mutex fetchedMutex_;
  std::array<std::byte, std::size_t{16} * 1024> fetched_;
  std::size_t fetchedBegin_ = 0;
  std::size_t fetchedEnd_ = 0;

  std::mutex writeMutex_;

  std::mutex postingMutex_;
  std::unique_ptr<PostingReader> reader_;
  std::atomic<bool> posting_{false};
};

}  // namespace cassorind
