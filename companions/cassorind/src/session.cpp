#include "session.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace cassorind {

std::int32_t Session::TakeFetched(std::span<std::byte> buffer) {
  std::lock_guard lock(fetchedMutex_);
  const std::size_t count = std::min(buffer.size(), fetchedEnd_ - fetchedBegin_);
  std::memcpy(buffer.data(), fetched_.data() + fetchedBegin_, count);
  fetchedBegin_ += count;
  return static_cast<std::int32_t>(count);
}

std::int32_t Session::Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs) {
  if (posting_.load(std::memory_order_acquire)) {
    const std::int32_t left = TakeFetched(buffer);
    if (left > 0) return left;
    return ended_->WaitMs(timeLimitMs) ? kDeviceGone : 0;
  }
  std::lock_guard lock(readMutex_);
  const std::int32_t left = TakeFetched(buffer);
  if (left > 0) return left;
  if (ended_->IsSet()) return kDeviceGone;
  const std::int32_t count = stream_->Read(fetched_, timeLimitMs, *ended_);
  if (count < 0) ended_->Set();
  if (count <= 0) return ended_->IsSet() ? kDeviceGone : 0;
  {
    std::lock_guard fetchedLock(fetchedMutex_);
    fetchedBegin_ = 0;
    fetchedEnd_ = static_cast<std::size_t>(count);
  }
  return TakeFetched(buffer);
}

std::size_t Session::Write(std::span<const std::byte> data) {
  std::lock_guard lock(writeMutex_);
  return stream_->Write(data, *ended_);
}

bool Session::Clear() {
  std::lock_guard lock(fetchedMutex_);
  fetchedBegin_ = fetchedEnd_;
  return stream_->Clear();
}

bool Session::StartPosting(const companions::Receiver& receiver,
                           std::shared_ptr<companions::ChunkArena> arena) {
  std::lock_guard lock(postingMutex_);
  auto reader = std::make_unique<PostingReader>();
  reader_ = nullptr;
  if (!reader->Start(stream_, receiver, std::move(arena), ended_)) return false;
  reader_ = std::move(reader);
  posting_.store(true, std::memory_order_release);
  return true;
}

void Session::StopPosting() {
  std::lock_guard lock(postingMutex_);
  posting_.store(false, std::memory_order_release);
  reader_ = nullptr;
}

void Session::End() {
  ended_->Set();
  StopPosting();
}

}  // namespace cassorind
