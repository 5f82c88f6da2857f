#include "channel.h"

#include <chrono>
#include <exception>
#include <utility>

namespace cassorind {

namespace {

// Operations end as soon as their session does, unless the system killed their threads.
constexpr std::chrono::milliseconds kIdleLimit{1000};

}  // namespace

// Holds the session for one operation. It is let go before the operation stops
// counting, so that the closing thread is the one that closes the device.
class Channel::Use {
 public:
  explicit Use(Channel& channel) : channel_(channel) {
    std::lock_guard lock(channel_.mutex_);
    session_ = channel_.session_;
    ++channel_.uses_;
  }
  Use(const Use&) = delete;
  Use& operator=(const Use&) = delete;
  ~Use() {
    {
      std::lock_guard lock(channel_.mutex_);
      session_ = nullptr;
      if (--channel_.uses_ > 0) return;
      // Under the lock: the channel may be freed as soon as it is idle.
      channel_.idle_.notify_all();
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
  std::shared_ptr<companions::ChunkArena> arena;
  {
    std::lock_guard lock(mutex_);
    receiver_.reset();
    if (enabled != 0) {
      if (!arena_) arena_ = std::make_shared<companions::ChunkArena>();
      arena = arena_;
      receiver_ = companions::Receiver{threadId, messageId};
    }
  }
  if (!session) return 1;
  session->StopPosting();
  return enabled == 0 || session->StartPosting({threadId, messageId}, arena) ? 1 : 0;
} catch (const std::exception&) {
  return 0;
}

std::int32_t Channel::Open(const CassorindOpenParameters* parameters) {
  if (!parameters || parameters->kind != 0 || parameters->port == 0) return 0;
  {
    std::lock_guard lock(mutex_);
    if (session_ || opening_) return 0;
    opening_ = true;
  }
  std::shared_ptr<Session> session;
  try {
    session = OpenSession(*parameters);
  } catch (const std::exception&) {
    session = nullptr;
  }
  std::lock_guard lock(mutex_);
  opening_ = false;
  session_ = std::move(session);
  return session_ ? 1 : 0;
}

std::shared_ptr<Session> Channel::OpenSession(const CassorindOpenParameters& parameters) {
  const Device device = DeviceOfPort(parameters.port);
  std::shared_ptr<ByteStream> stream;
  if (device.tcp) {
    stream = OpenTcp(*device.tcp);
  } else if (device.serial) {
    stream = OpenSerial(*device.serial, parameters.baudRate);
  }
  if (!stream) return nullptr;
  auto session = std::make_shared<Session>(std::move(stream));
  std::optional<companions::Receiver> receiver;
  std::shared_ptr<companions::ChunkArena> arena;
  {
    std::lock_guard lock(mutex_);
    receiver = receiver_;
    arena = arena_;
  }
  if (receiver && !session->StartPosting(*receiver, std::move(arena))) return nullptr;
  return session;
}

std::int32_t Channel::Close() {
  std::shared_ptr<Session> session;
  {
    std::lock_guard lock(mutex_);
    session = std::move(session_);
  }
  if (!session) return 0;
  session->End();
  std::unique_lock lock(mutex_);
  idle_.wait_for(lock, kIdleLimit, [this] { return uses_ == 0; });
  return 1;
}

bool Channel::IsIdle() {
  std::lock_guard lock(mutex_);
  return uses_ == 0;
}

std::int32_t Channel::Clear() {
  const Use session(*this);
  return session && session->Clear() ? 1 : 0;
}

std::int32_t Channel::Read(void* buffer, std::uint32_t maxBytes, std::uint32_t timeLimitMs,
                           std::uint32_t /*reserved*/) {
  const Use session(*this);
  if (!session) return kDeviceGone;
  if (!buffer || maxBytes == 0) return 0;
  return session->Read({static_cast<std::byte*>(buffer), maxBytes}, timeLimitMs);
}

std::int32_t Channel::Write(const void* data, std::uint32_t length, std::uint32_t /*reserved*/) {
  const Use session(*this);
  if (!session || !data) return 0;
  return static_cast<std::int32_t>(session->Write({static_cast<const std::byte*>(data), length}));
}

}  // namespace cassorind
