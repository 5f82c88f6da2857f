#include "link/settings.h"

#include <utility>

#include "link/byte_order.h"
#include "platform/profile_file.h"

namespace merovane {

LinkSettings::LinkSettings(const std::filesystem::path& directory) {
  const auto file = platform::ProfileFile::Load(directory / "Merovane.ini");
  receiveIncrementMs = file.Integer("Inc Recv Timeout", "Timeout", 0);
  usefulLog = file.Integer("Record Comm Log", "Record Useful Log", 0) != 0;
  allLog = file.Integer("Record Comm Log", "Record All Log", 0) != 0;
  SetBigEndian(file.Integer("Endian Control", "Big Endian", 1) != 0);
  serialNumberMagic = file.Text("WRITESN_DEFAULT_MAGIC", "MAGIC_NUMBER", "QV05");
  serverPort_ = file.Integer("Socket", "Port", 36667);
  if (file.Integer("Socket", "Connect ChannelServer", 0) != 0) UseChannelServer(true);
}

LinkSettings::~LinkSettings() = default;

void LinkSettings::SaveReceivedData(bool on, std::filesystem::path path) {
  const std::lock_guard lock(mutex_);
  receivedDataPath_ = std::move(path);
  saveReceivedData_ = on;
}

std::filesystem::path LinkSettings::ReceivedDataPath() const {
  const std::lock_guard lock(mutex_);
  return receivedDataPath_;
}

void LinkSettings::UseChannelServer(bool on) {
  const std::lock_guard lock(mutex_);
  if (!on) {
    if (server_) server_->Disconnect();
    server_.reset();
  } else if (!server_) {
    server_ = ChannelServer::Connect(serverPort_);
  }
  serverConnected_ = server_ != nullptr;
}

std::shared_ptr<ChannelServer> LinkSettings::Server() const {
  const std::lock_guard lock(mutex_);
  return server_;
}

}  // namespace merovane
