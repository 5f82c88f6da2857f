// What a station sets: the values of its settings file, and what it switches while running.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <filesystem>
#include <string>

#include "link/byte_order.h"
#include "platform/mutex.h"

namespace merovane {

// One key of the settings file.
struct SettingKey {
  const char* section;
  const char* key;
  const char* fallback;
  bool isNumber;
};

namespace setting {
inline constexpr SettingKey kConnectServer{"Socket", "Connect ChannelServer", "0", true};
inline constexpr SettingKey kServerPort{"Socket", "Port", "36667", true};
inline constexpr SettingKey kReceiveIncrement{"Inc Recv Timeout", "Timeout", "0", true};
inline constexpr SettingKey kUsefulLog{"Record Comm Log", "Record Useful Log", "0", true};
inline constexpr SettingKey kAllLog{"Record Comm Log", "Record All Log", "0", true};
inline constexpr SettingKey kTrace{"Record Comm Log", "Record Trace", "0", true};
inline constexpr SettingKey kBigEndian{"Endian Control", "Big Endian", "1", true};
inline constexpr SettingKey kSerialNumberMagic{"WRITESN_DEFAULT_MAGIC", "MAGIC_NUMBER", "QV05",
                                               false};
inline constexpr std::array kAll{kConnectServer, kServerPort,       kReceiveIncrement,
                                 kUsefulLog,     kAllLog,           kTrace,
                                 kBigEndian,     kSerialNumberMagic};
}  // namespace setting

class LinkSettings {
 public:
  // Reads "Merovane.ini" in `folder`. A missing file or key leaves the default.
  explicit LinkSettings(const std::filesystem::path& folder) { Read(folder); }
  // Anew, from another folder; no link may stand.
  void Read(const std::filesystem::path& folder);

  // 1: ports opened from now on receive through a thread of their own.
  std::atomic<std::uint32_t> receiveMode{0};
  // Added to every answer wait; a number below 0 in two's complement shortens it.
  std::atomic<std::uint32_t> receiveIncrementMs{0};
  std::atomic<bool> usefulLog{false};
  std::atomic<bool> allLog{false};
  // What the file says of the trace of calls.
  std::atomic<std::uint32_t> trace{0};
  // Whether the file asks for the channel server at once, and where it is.
  std::atomic<bool> connectServer{false};
  std::atomic<std::uint32_t> serverPort{0};

  // What a wait of `timeoutMs` is with the increment; never less than 0 nor more than fits.
  std::uint32_t WithIncrement(std::uint32_t timeoutMs) const;

  // The handsets'.
  ByteOrder Order() const { return bigEndian_ ? ByteOrder::Big() : ByteOrder::Little(); }
  void SetOrder(ByteOrder order) { bigEndian_ = order.IsBig(); }

  // Received data is appended to a file, by ports opened while this is on.
  void SaveReceivedData(bool on, std::filesystem::path path);
  bool SavesReceivedData() const { return saveReceivedData_; }
  std::filesystem::path ReceivedDataPath() const;

  // The serial-number layout for handsets without one, as the file names it now.
  std::string SerialNumberMagic() const;

  // Where the settings file and the folder "Log" stand.
  std::filesystem::path Folder() const;
  std::filesystem::path File() const { return Folder() / "Merovane.ini"; }

 private:
  std::atomic<bool> bigEndian_{true};
  std::atomic<bool> saveReceivedData_{false};
  mutable platform::Mutex mutex_;
  std::filesystem::path folder_ MEROVANE_GUARDED_BY(mutex_);
  std::filesystem::path receivedDataPath_ MEROVANE_GUARDED_BY(mutex_);
};

}  // namespace merovane
