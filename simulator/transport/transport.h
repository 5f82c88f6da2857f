// The handset's port. One station at a time; what is written while none listens is lost, as on a
// serial line. Used on the thread that runs the io_context.
#pragma once

#include <asio/io_context.hpp>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "wire/wire.h"

namespace handset {

enum class TransportKind { Pty, Tcp, Serial };

struct PortOptions {
  TransportKind transport = TransportKind::Pty;
  // Pty: the symbolic link that names the device; empty makes one in a temporary folder.
  std::string link;
  // TCP: loopback and a free port unless told otherwise.
  std::string address = "127.0.0.1";
  std::uint16_t tcpPort = 0;
  // Serial: a device of this machine.
  std::string serialDevice;
  unsigned baudRate = 115200;
};

struct TransportEvents {
  std::function<void(std::span<const std::uint8_t>)> received;
  std::function<void(bool connected)> connection;
};

class Transport {
 public:
  virtual ~Transport() = default;

  // The port comes into being. Throws std::runtime_error when it cannot.
  virtual void Appear() = 0;
  // The port goes away, with whatever was still on it.
  virtual void Vanish() = 0;
  // Cuts the station off while the port stays; false where only vanishing does that.
  virtual bool CutConnection() = 0;

  virtual bool Connected() const = 0;
  // All that was written has been taken by the station, as far as can be seen from here.
  virtual bool Drained() const = 0;
  // Bytes that the station has not taken yet.
  virtual std::size_t Backlog() const = 0;
  virtual void Write(Bytes bytes) = 0;

  // What a station opens: a device path, or "host:port".
  virtual std::string Address() const = 0;
};

std::unique_ptr<Transport> MakeTransport(asio::io_context& io, const PortOptions& options,
                                         TransportEvents events);

// These two stand in the operating system's own folder.
std::unique_ptr<Transport> MakePty(asio::io_context& io, const PortOptions& options,
                                   TransportEvents events);
std::unique_ptr<Transport> MakeSerial(asio::io_context& io, const PortOptions& options,
                                      TransportEvents events);
std::unique_ptr<Transport> MakeTcp(asio::io_context& io, const PortOptions& options,
                                   TransportEvents events);

}  // namespace handset
