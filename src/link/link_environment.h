// What all links of a process share.
#pragma once

#include <filesystem>

#include "link/channel_server.h"
#include "link/error_reporter.h"
#include "link/log_observer.h"
#include "link/settings.h"

namespace merovane {

struct LinkEnvironment {
  // Reads the settings in `directory` and connects to the channel server when they say so.
  explicit LinkEnvironment(const std::filesystem::path& directory, MakeServer make = LoadServer)
      : settings(directory), server(settings.serverPort, make) {
    if (settings.connectServer) server.Use(true);
  }
  // Does the same anew; no link may stand.
  void ReadSettings(const std::filesystem::path& directory) {
    server.Use(false);
    settings.Read(directory);
    server.SetPort(settings.serverPort);
    if (settings.connectServer) server.Use(true);
  }

  // Whether ports that are opened now receive through a thread of their own.
  bool ReceivesThroughThread() const { return settings.receiveMode == 1 || server.IsConnected(); }

  LinkSettings settings;
  ErrorReporter errors;
  ChannelServer server;
  // Outlives the links; null: nobody.
  LogObserver* logObserver = nullptr;
};

}  // namespace merovane
