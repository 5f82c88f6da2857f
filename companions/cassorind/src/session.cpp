#include "session.h"

#include <algorithm>

namespace cassorind {

using platform::MutexLock;

namespace {

// How often a read that has nothing to read looks whether the receiver is still there.
constexpr std::uint32_t kReceiverLookMs = 20;

}  // namespace

std::size_t Session::TakeKept(std::span<std::byte> buffer) {
  const MutexLock lock(keptMutex_);
  if (!fetchedLeft_.empty()) {
    const auto taken = fetchedLeft_.first(std::min(buffer.size(), fetchedLeft_.size()));
    std::ranges::copy(taken, buffer.begin());
    fetchedLeft_ = fetchedLeft_.subspan(taken.size());
    return taken.size();
  }
  const auto count = std::min(buffer.size(), unposted_.size());
  const auto end = unposted_.begin() + static_cast<std::ptrdiff_t>(count);
  std::copy(unposted_.begin(), end, buffer.begin());
  unposted_.erase(unposted_.begin(), end);
  return count;
}

std::int32_t Session::Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs) {
  while (PostsToAnyone()) {
    if (const std::size_t kept = TakeKept(buffer)) return static_cast<std::int32_t>(kept);
    const std::uint32_t waitMs = std::min(timeLimitMs, kReceiverLookMs);
    if (ended_->WaitMs(waitMs)) return platform::kDeviceGone;
    timeLimitMs -= waitMs;
    if (timeLimitMs == 0) return 0;
  }
  const MutexLock lock(readMutex_);
  if (const std::size_t kept = TakeKept(buffer)) return static_cast<std::int32_t>(kept);
  if (ended_->IsSet()) return platform::kDeviceGone;
  const std::int32_t count = stream_->Read(fetched_, timeLimitMs, *ended_);
  if (count < 0) ended_->Set();
  if (count <= 0) return ended_->IsSet() ? platform::kDeviceGone : 0;
  {
    const MutexLock keptLock(keptMutex_);
    fetchedLeft_ = std::span(fetched_).first(static_cast<std::size_t>(count));
  }
  return static_cast<std::int32_t>(TakeKept(buffer));
}

std::size_t Session::Write(std::span<const std::byte> data) {
  const MutexLock lock(writeMutex_);
  return stream_->Write(data, *ended_);
}

bool Session::Clear() {
  const MutexLock lock(keptMutex_);
  fetchedLeft_ = {};
  unposted_.clear();
  return stream_->Clear();
}

bool Session::StartPosting(const companions::Receiver& receiver,
                           std::shared_ptr<companions::ChunkArena> arena) {
  const MutexLock lock(postingMutex_);
  Stop();
  auto reader = std::make_unique<PostingReader>();
  if (!reader->Start(stream_, receiver, std::move(arena), ended_)) return false;
  reader_ = std::move(reader);
  posting_.store(true, std::memory_order_release);
  return true;
}

void Session::StopPosting() {
  const MutexLock lock(postingMutex_);
  Stop();
}

void Session::Stop() {
  posting_.store(false, std::memory_order_release);
  const auto reader = std::exchange(reader_, nullptr);
  if (!reader) return;
  const auto unposted = reader->Stop();
  const MutexLock lock(keptMutex_);
  unposted_.insert(unposted_.end(), unposted.begin(), unposted.end());
}

// A receiver whose thread is gone is dropped: what comes from now on is read.
bool Session::PostsToAnyone() {
  if (!posting_.load(std::memory_order_acquire)) return false;
  const MutexLock lock(postingMutex_);
  if (reader_ && reader_->ReceiverIsGone()) Stop();
  return reader_ != nullptr;
}

void Session::End() {
  ended_->Set();
  StopPosting();
}

}  // namespace cassorind
