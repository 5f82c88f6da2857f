#include "connection.h"

#include <asio/post.hpp>
#include <asio/write.hpp>
#include <chrono>
#include <utility>

namespace tollvane {

namespace {

constexpr std::size_t kBacklogBytes = std::size_t{1024} * 1024;
// Half of what an unloading library may be held up: for the server to take
// the backlog, then for the thread to end without it.
constexpr std::uint32_t kEndStepMs = 500;

}  // namespace

std::shared_ptr<Connection> Connection::Open(std::uint16_t port, std::uint32_t limitMs,
                                             std::shared_ptr<Receivers> receivers,
                                             std::shared_ptr<companions::ChunkArena> arena) {
  auto connection = std::make_shared<Connection>(std::move(receivers), std::move(arena));
  if (!connection->Connect(port, limitMs) || !connection->StartThread()) return nullptr;
  return connection;
}

Connection::Connection(std::shared_ptr<Receivers> receivers,
                       std::shared_ptr<companions::ChunkArena> arena)
    : receivers_(std::move(receivers)), arena_(std::move(arena)) {}

bool Connection::Connect(std::uint16_t port, std::uint32_t limitMs) {
  std::error_code result = asio::error::would_block;
  const asio::ip::tcp::endpoint server(asio::ip::address_v4::loopback(), port);
  socket_.async_connect(server, [this, &result](const std::error_code& error) {
    result = error;
    io_.stop();
  });
  io_.run_for(std::chrono::milliseconds(limitMs));
  io_.restart();
  if (result == asio::error::would_block) {
    // Too late; its end must be over before this frame is left.
    std::error_code ignored;
    socket_.close(ignored);
    io_.run();
    io_.restart();
  }
  if (result) return false;
  std::error_code ignored;
  socket_.set_option(asio::ip::tcp::no_delay(true), ignored);
  connected_.store(true);
  return true;
}

// What runs in io_ refers to the connection without holding it: the thread does, as long as any of
// it can run.
bool Connection::StartThread() {
  return thread_.StartWithoutQueue([self = shared_from_this()] {
    self->Receive();
    self->io_.run();
  });
}

bool Connection::Send(std::span<const std::byte> data) {
  const platform::MutexLock lock(backlogMutex_);
  if (!connected_.load() || finishing_) return false;
  if (backlog_.size() + beingSent_.size() + data.size() > kBacklogBytes) return false;
  backlog_.insert(backlog_.end(), data.begin(), data.end());
  if (!sending_) {
    sending_ = true;
    asio::post(io_, [this] { SendBacklog(); });
  }
  return true;
}

void Connection::End() {
  stop_.Set();
  asio::post(io_, [this] { Finish(); });
  if (thread_.WaitMs(kEndStepMs)) return;
  io_.stop();
  thread_.WaitMs(kEndStepMs);
}

void Connection::Receive() {
  const auto room = arena_->Reserve();
  socket_.async_read_some(asio::buffer(room.data(), room.size()),
                          [this, room](const std::error_code& error, std::size_t count) {
                            if (stop_.IsSet()) return;
                            if (error) return Close();
                            arena_->Commit(count);
                            receivers_->Post(room.first(count), stop_);
                            Receive();
                          });
}

void Connection::SendBacklog() {
  asio::const_buffer piece;
  {
    const platform::MutexLock lock(backlogMutex_);
    beingSent_.clear();
    std::swap(beingSent_, backlog_);
    sending_ = !beingSent_.empty();
    if (!sending_) {
      if (finishing_) Close();
      return;
    }
    // Only this thread changes what is being sent.
    piece = asio::buffer(beingSent_);
  }
  asio::async_write(socket_, piece, [this](const std::error_code& error, std::size_t) {
    if (error) return Close();
    SendBacklog();
  });
}

void Connection::Finish() {
  work_.reset();
  const platform::MutexLock lock(backlogMutex_);
  finishing_ = true;
  if (!sending_) Close();
}

void Connection::Close() {
  connected_.store(false);
  std::error_code ignored;
  socket_.shutdown(asio::ip::tcp::socket::shutdown_send, ignored);
  socket_.close(ignored);
}

}  // namespace tollvane
