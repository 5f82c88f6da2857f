// One connection to a channel server, served by a thread of its own.
#pragma once

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "common/chunk_arena.h"
#include "platform/event.h"
#include "platform/mutex.h"
#include "platform/thread.h"
#include "receivers.h"

namespace tollvane {

class Connection : public std::enable_shared_from_this<Connection> {
 public:
  // Connects to the server on 127.0.0.1, within `limitMs`. It happens on the calling thread alone,
  // since the new one may not run before the caller has returned from loading a library. Null on
  // failure.
  static std::shared_ptr<Connection> Open(std::uint16_t port, std::uint32_t limitMs,
                                          std::shared_ptr<Receivers> receivers,
                                          std::shared_ptr<companions::ChunkArena> arena);
  Connection(std::shared_ptr<Receivers> receivers, std::shared_ptr<companions::ChunkArena> arena);

  // False when the connection is gone or the data do not fit in the backlog.
  bool Send(std::span<const std::byte> data);
  // Sends what is in the backlog if the server takes it soon, then disconnects.
  // Nothing is posted after it has returned.
  void End();

 private:
  bool Connect(std::uint16_t port, std::uint32_t limitMs);
  bool StartThread();
  // The ones below run on the connection's thread.
  void Receive();
  void SendBacklog();
  void Finish();
  void Close();

  const std::shared_ptr<Receivers> receivers_;
  const std::shared_ptr<companions::ChunkArena> arena_;
  platform::Event stop_;
  asio::io_context io_{1};
  asio::ip::tcp::socket socket_{io_};
  asio::executor_work_guard<asio::io_context::executor_type> work_{io_.get_executor()};
  std::atomic<bool> connected_{false};

  platform::Mutex backlogMutex_;
  std::vector<std::byte> backlog_ MEROVANE_GUARDED_BY(backlogMutex_);
  std::vector<std::byte> beingSent_ MEROVANE_GUARDED_BY(backlogMutex_);
  bool sending_ MEROVANE_GUARDED_BY(backlogMutex_) =
      false;  // a send is under way or about to start
  bool finishing_ MEROVANE_GUARDED_BY(backlogMutex_) =
      false;  // close as soon as the backlog is empty

  platform::Thread thread_;
};

}  // namespace tollvane
