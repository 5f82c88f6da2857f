// Tollvane: the channel-server library.
//
// A channel server is a TCP server on this machine (loopback) that sees a copy
// of what handsets send and can send data to them. This library is its client.
// Wire format: plain bytes in both directions.
#ifndef TOLLVANE_TOLLVANE_H
#define TOLLVANE_TOLLVANE_H

#include <cstdint>

#include "companions/export.h"

#ifdef TOLLVANE_BUILD
#define TOLLVANE_API COMPANION_EXPORT
#else
#define TOLLVANE_API COMPANION_IMPORT
#endif

struct TollvaneConnectParameters {
  std::uint32_t port;         // TCP port of the server on 127.0.0.1
  std::uint32_t reserved[2];  // 0
};

// The operations stand in the order in which callers built against other
// versions of this library expect them; none may be added before the last.
class TollvaneServer {
 public:
  // Disconnects if need be and frees the object.
  virtual void Release() = 0;
  // Enabled (non-zero): data from the server is posted to thread `threadId` as messages
  // `messageId` whose first parameter is a chunk's address and whose second is its
  // length in bytes. Zero removes that thread; one that has ended is removed without a
  // word. With several threads registered each gets every chunk. Returns non-zero on success.
  //
  // The server object owns every chunk: the receiver reads it and never frees it. A chunk
  // stays as it is for 5 seconds, less when 512 KiB more come meanwhile, and its memory can be
  // read until the object is released.
  virtual std::int32_t RegisterReceiver(std::uint32_t messageId, std::int32_t enabled,
                                        std::uint32_t threadId) = 0;
  // 0 when the connection stands, anything else when it does not. Tries for at most 2 seconds.
  virtual std::int32_t Connect(const TollvaneConnectParameters* parameters) = 0;
  // Non-zero when it was connected. Posts nothing after it has returned.
  virtual std::int32_t Disconnect() = 0;
  // Hands a chunk received from a handset to the server. Returns the number of
  // bytes taken: all of them, or 0 when there is no connection. Never waits for a
  // slow server: what does not fit in 1 MiB of backlog is dropped whole.
  virtual std::int32_t Forward(const void* data, std::uint32_t length) = 0;

 protected:
  ~TollvaneServer() = default;
};

extern "C" {
// A new, unconnected server object, or null.
TOLLVANE_API TollvaneServer* COMPANION_CALL InitDll();
}

#endif
