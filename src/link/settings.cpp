#include "link/settings.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/profile_file.h"

namespace merovane {

void LinkSettings::Read(const std::filesystem::path& folder) {
  {
    const platform::MutexLock lock(mutex_);
    folder_ = folder;
  }
  const auto file = platform::ProfileFile::Load(File());
  const auto number = [&](const SettingKey& key) {
    const auto fallback = static_cast<std::uint32_t>(std::atoi(key.fallback));
    return file.Integer(key.section, key.key, fallback);
  };
  receiveIncrementMs = number(setting::kReceiveIncrement);
  usefulLog = number(setting::kUsefulLog) != 0;
  allLog = number(setting::kAllLog) != 0;
  trace = number(setting::kTrace);
  SetOrder(number(setting::kBigEndian) != 0 ? ByteOrder::Big() : ByteOrder::Little());
  connectServer = number(setting::kConnectServer) != 0;
  serverPort = number(setting::kServerPort);
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
  const SettingKey& key = setting::kSerialNumberMagic;
  return platform::ProfileFile::Load(File()).Text(key.section, key.key, key.fallback);
}

std::filesystem::path LinkSettings::Folder() const {
  const platform::MutexLock lock(mutex_);
  return folder_;
}

}  // namespace merovane
