#include "link/settings.h"

#include <algorithm>
#include <utility>

#include "platform/profile_file.h"

namespace merovane {

LinkSettings::LinkSettings(const std::filesystem::path& directory)
    : file_(directory / "Merovane.ini") {
  const auto file = platform::ProfileFile::Load(file_);
  receiveIncrementMs = file.Integer("Inc Recv Timeout", "Timeout", 0);
  usefulLog = file.Integer("Record Comm Log", "Record Useful Log", 0) != 0;
  allLog = file.Integer("Record Comm Log", "Record All Log", 0) != 0;
  SetOrder(file.Integer("Endian Control", "Big Endian", 1) != 0 ? ByteOrder::Big()
                                                                : ByteOrder::Little());
  connectServer = file.Integer("Socket", "Connect ChannelServer", 0) != 0;
  serverPort = file.Integer("Socket", "Port", 36667);
}

std::uint32_t LinkSettings::WithIncrement(std::uint32_t timeoutMs) const {
  const auto incrementMs = static_cast<std::int32_t>(receiveIncrementMs.load());
  return static_cast<std::uint32_t>(
      std::clamp<std::int64_t>(std::int64_t{timeoutMs} + incrementMs, 0, UINT32_MAX));
}

void LinkSettings::SaveReceivedData(bool on, std::filesystem::path path) {
  const platform::MutexLock lock(mutex_);
  receivedDataPath_ = std::move(path);
  saveReceivedData_ = on;
}

std::filesystem::path LinkSettings::ReceivedDataPath() const {
  const platform::MutexLock lock(mutex_);
  return receivedDataPath_;
}

std::string LinkSettings::SerialNumberMagic() const {
  return platform::ProfileFile::Load(file_).Text("WRITESN_DEFAULT_MAGIC", "MAGIC_NUMBER", "QV05");
}

}  // namespace merovane
