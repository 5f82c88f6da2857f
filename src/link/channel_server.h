// The channel server, which sees a copy of what handsets say and can speak to them; it is reached
// through the socket library.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "platform/module.h"
#include "platform/mutex.h"
#include "tollvane/tollvane.h"

namespace merovane {

// Message that carries data from the channel server.
inline constexpr std::uint32_t kServerDataMessage = 2025;

// Where server objects come from; tests put their own in place of the socket library. Null when
// there is none.
using MakeServer = TollvaneServer* (*)(platform::Module& library);
TollvaneServer* LoadServer(platform::Module& library);

// One connection, which ports opened meanwhile share. Once it has ended, nothing that is still
// asked of it reaches the server object, which another connection may have got again.
class ServerConnection {
 public:
  // Null when the library is missing or does not connect; `hasLibrary` tells which.
  static std::shared_ptr<ServerConnection> Make(std::uint32_t port, MakeServer make,
                                                bool& hasLibrary);
  ~ServerConnection();
  ServerConnection(const ServerConnection&) = delete;
  ServerConnection& operator=(const ServerConnection&) = delete;

  // Data meant for the handset is posted to the thread as messages 2025.
  void RegisterReceiver(std::uint32_t threadId);
  // False when the connection has ended.
  bool Forward(std::span<const std::uint8_t> chunk);
  // Copies what a message carried, as much of it as fits; 0 when the connection has ended, and the
  // data with it.
  std::size_t Take(std::span<const std::uint8_t> posted, std::span<std::uint8_t> into);

  void End();

 private:
  ServerConnection() = default;

  platform::Mutex mutex_;
  platform::Module library_ MEROVANE_GUARDED_BY(mutex_);
  // Freed through its own release operation.
  TollvaneServer* server_ MEROVANE_GUARDED_BY(mutex_) = nullptr;
};

class ChannelServer {
 public:
  explicit ChannelServer(std::uint32_t port, MakeServer make = LoadServer)
      : make_(make), port_(port) {}

  // Connects when it is not connected; a failure is silent. Or disconnects, after every port has
  // let go of the server, and lets the socket library go.
  void Use(bool on);
  // Of the server, from the next connection on.
  void SetPort(std::uint32_t port);
  // Null while there is none.
  std::shared_ptr<ServerConnection> Connection() const;
  bool IsConnected() const { return connected_; }
  // What the last attempt to connect did not find.
  enum class Missing { Nothing, Library, Server };
  Missing WhyNot() const;

 private:
  const MakeServer make_;
  std::atomic<bool> connected_{false};
  mutable platform::Mutex mutex_;
  std::uint32_t port_ MEROVANE_GUARDED_BY(mutex_);
  Missing missing_ MEROVANE_GUARDED_BY(mutex_) = Missing::Nothing;
  std::shared_ptr<ServerConnection> connection_ MEROVANE_GUARDED_BY(mutex_);
};

}  // namespace merovane
