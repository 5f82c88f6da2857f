// The process-wide settings: what the settings file says, and what is switched while running.
#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>

#include "link/channel_server.h"
#include "link/error_reporter.h"

namespace merovane {

class LinkSettings {
 public:
  // Reads "Merovane.ini" in `directory` and, when it says so, connects to the channel
  // server. A missing file or key leaves the default; a connection that fails is silent.
  explicit LinkSettings(const std::filesystem::path& directory);
  ~LinkSettings();

  // 1: ports opened from now on receive through a thread of their own.
  std::atomic<std::uint32_t> receiveMode{0};
  // Added to every answer wait; a number below 0 in two's complement shortens it.
  std::atomic<std::uint32_t> receiveIncrementMs{0};
  std::atomic<bool> usefulLog{false};
  std::atomic<bool> allLog{false};
  // The serial-number layout for handsets without one, as the file names it.
  std::string serialNumberMagic;

  ErrorReporter errors;

  // Received data is appended to a file, by ports opened while this is on.
  void SaveReceivedData(bool on, std::filesystem::path path);
  bool SavesReceivedData() const { return saveReceivedData_; }
  std::filesystem::path ReceivedDataPath() const;

  // Connects when it is not connected, or disconnects and lets the socket library go.
  void UseChannelServer(bool on);
  // The connected server, or null.
  std::shared_ptr<ChannelServer> Server() const;
  // Links receive through a thread of their own.
  bool ReceivesThroughThread() const { return receiveMode == 1 || serverConnected_; }
  bool ServerConnected() const { return serverConnected_; }

 private:
  std::uint32_t serverPort_ = 0;
  std::atomic<bool> saveReceivedData_{false};
  std::atomic<bool> serverConnected_{false};
  mutable std::mutex mutex_;
  std::filesystem::path receivedDataPath_;
  std::shared_ptr<ChannelServer> server_;
};

}  // namespace merovane
