#include "channel.h"

#include <chrono>
#include <cstdint>
#include <exception>
#include <utility>

#include "device.h"
#include "platform/serial_ports.h"

namespace cassorind {

using platform::MutexLock;

CassorindFailure& LastFailure() {
  // Without a destructor: threads may outlive the library.
  thread_local CassorindFailure failure{};
  return failure;
}

namespace {

// Operations end as soon as their session does, unless the system killed their threads.
constexpr std::chrono::milliseconds kIdleLimit{1000};

}  // namespace

// Holds the session for one operation. It is let go before the operation stops
// counting, so that the closing thread is the one that closes the device.
class Channel::Use {
 public:
  explicit Use(Channel& channel) : channel_(channel) {
    const MutexLock lock(channel_.mutex_);
    session_ = channel_.session_;
    ++channel_.uses_;
  }
  Use(const Use&) = delete;
  Use& operator=(const Use&) = delete;
  ~Use() {
    {
      const MutexLock lock(channel_.mutex_);
      session_ = nullptr;
      if (--channel_.uses_ > 0) return;
      // Under the lock: the channel may be freed as soon as it is idle.
      channel_.idle_.NotifyAll();
    }
  }
  explicit operator bool() const { return session_ != nullptr; }
  Session* operator->() const { return session_.get(); }

 private:
  Channel& channel_;
  std::shared_ptr<Session> session_;
};

std::int32_t Channel::SetReceiver(std::uint32_t messageId, std::int32_t enabled,
                                  std::uint32_t threadId) try {
  const Use session(*this);
  std::optional<companions::Receiver> receiver;
  std::shared_ptr<companions::ChunkArena> arena;
  {
    const MutexLock lock(mutex_);
    receiver_.reset();
    if (enabled != 0) {
      if (!arena_) arena_ = std::make_shared<companions::ChunkArena>();
      arena = arena_;
      receiver_ = companions::Receiver{platform::MessageReceiver(threadId), messageId};
      receiver = receiver_;
    }
  }
  if (!session) return 1;
  session->StopPosting();
  return !receiver || session->StartPosting(*receiver, arena) ? 1 : 0;
} catch (const std::exception&) {
  return 0;
}

std::int32_t Channel::Open(const CassorindOpenParameters* parameters) {
  if (!parameters || parameters->kind != 0 || parameters->port == 0 ||
      parameters->port > INT32_MAX) {
    return 0;
  }
  {
    const MutexLock lock(mutex_);
    if (session_ || opening_) return 0;
    opening_ = true;
  }
  std::shared_ptr<Session> session;
  try {
    session = OpenSession(*parameters);
  } catch (const std::exception&) {
    session = nullptr;
  }
  const MutexLock lock(mutex_);
  opening_ = false;
  session_ = std::move(session);
  return session_ ? 1 : 0;
}

std::shared_ptr<Session> Channel::OpenSession(const CassorindOpenParameters& parameters) {
  const auto port = static_cast<std::int32_t>(parameters.port);
  std::shared_ptr<platform::ByteStream> stream =
      OpenDevice(platform::DeviceOfPort(port), parameters.baudRate, LastFailure());
  if (!stream) return nullptr;
  LastFailure() = {};
  auto session = std::make_shared<Session>(std::move(stream));
  std::optional<companions::Receiver> receiver;
  std::shared_ptr<companions::ChunkArena> arena;
  {
    const MutexLock lock(mutex_);
    receiver = receiver_;
    arena = arena_;
  }
  // A receiver whose thread is gone is dropped.
  if (receiver && !receiver->thread.IsGone() &&
      !session->StartPosting(*receiver, std::move(arena))) {
    return nullptr;
  }
  return session;
}

std::int32_t Channel::Close() {
  std::shared_ptr<Session> session;
  {
    const MutexLock lock(mutex_);
    session = std::move(session_);
  }
  if (!session) return 0;
  session->End();
  const auto limit = std::chrono::steady_clock::now() + kIdleLimit;
  const MutexLock lock(mutex_);
  while (uses_ > 0 && idle_.WaitUntil(mutex_, limit)) {
  }
  return 1;
}

bool Channel::IsIdle() {
  const MutexLock lock(mutex_);
  return uses_ == 0;
}

std::int32_t Channel::Clear() {
  const Use session(*this);
  return session && session->Clear() ? 1 : 0;
}

std::int32_t Channel::Read(void* buffer, std::uint32_t maxBytes, std::uint32_t timeLimitMs,
                           std::uint32_t /*reserved*/) {
  const Use session(*this);
  if (!session) return platform::kDeviceGone;
  if (!buffer || maxBytes == 0) return 0;
  return session->Read({static_cast<std::byte*>(buffer), maxBytes}, timeLimitMs);
}

std::int32_t Channel::Write(const void* data, std::uint32_t length, std::uint32_t /*reserved*/) {
  const Use session(*this);
  if (!session || !data) return 0;
  return static_cast<std::int32_t>(session->Write({static_cast<const std::byte*>(data), length}));
}

}  // namespace cassorind
