// A log file: time-stamped text lines and hex dumps, or plain data files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "platform/files.h"
#include "platform/mutex.h"

namespace merovane {

enum class LogOption {
  Directory = 0,        // LogDirectory
  BaseName = 1,         // text: the name Open takes when it is given none
  BytesPerLine = 2,     // of a hex dump, 1 to 16; 0 and larger values mean 16
  TimeStamps = 3,       // 0 or 1
  Offsets = 4,          // of hex dump lines, 0 or 1
  CharacterColumn = 5,  // of hex dump lines, 0 or 1
  Console = 6,          // 0 off, 1 on and shown, 2 on and hidden
  Extension = 7,        // text, of data files, at most 259 characters
  SizeLimitMb = 8,      // 0: none
};

struct LogDirectory {
  enum class Kind {
    Executable = 1,  // the executable's directory, "Log", then the folder
    Temporary = 2,   // the system's temporary directory, "Log", then the folder
    Given = 3,       // the folder, given whole
  };
  Kind kind = Kind::Executable;
  std::string folder;
  // In place of the executable's directory, when not empty.
  std::filesystem::path home = {};
  friend bool operator==(const LogDirectory&, const LogDirectory&) = default;
};

using LogOptionValue = std::variant<std::uint32_t, std::string, LogDirectory>;

namespace log_flags {
inline constexpr std::uint32_t kDateAndTimeInName = 0x1;
inline constexpr std::uint32_t kDateInName = 0x2;
inline constexpr std::uint32_t kReceivedData = 0x100;
inline constexpr std::uint32_t kSentData = 0x200;
inline constexpr std::uint32_t kText = 0x4000;
inline constexpr std::uint32_t kData = 0x8000;
}  // namespace log_flags

enum class LogDirection { Received, Sent, Third, Other };

class LogFile {
 public:
  // False, and nothing changed, for a value of the wrong kind.
  bool SetOption(LogOption option, LogOptionValue value);
  LogOptionValue Option(LogOption option) const;

  // Opens the file, or the data files, that name, flags and options say, to go on at their end. A
  // relative name stands in the log directory, which is created when missing. `first` and `second`
  // are kept with the flags for whoever asks.
  bool Open(std::string_view name, std::uint32_t flags, std::uint32_t first = 0,
            std::uint32_t second = 0);
  bool IsOpen() const;
  void Close();

  void Text(std::string_view line);
  // Text as it is: no time stamp, no line end.
  void Raw(std::string_view text);
  // A hex dump of the data; of a part when `wholeBytes` is larger than the data. Data files take
  // the bytes themselves.
  void Dump(std::span<const std::uint8_t> data, LogDirection direction,
            std::uint32_t wholeBytes = 0);

  // Where a text log is written to now.
  std::filesystem::path Path() const;

 private:
  struct Target {
    platform::AppendFile file;
    std::filesystem::path directory;
    std::string base;
    std::string extension;
    std::filesystem::path path;
    std::uint32_t rolled = 0;
  };

  static bool OpenTarget(Target& target);
  void Write(Target& target, std::string_view block) MEROVANE_REQUIRES(mutex_);

  mutable platform::Mutex mutex_;
  LogDirectory directory_ MEROVANE_GUARDED_BY(mutex_);
  std::string baseName_ MEROVANE_GUARDED_BY(mutex_);
  std::uint32_t bytesPerLine_ MEROVANE_GUARDED_BY(mutex_) = 16;
  bool timeStamps_ MEROVANE_GUARDED_BY(mutex_) = true;
  bool offsets_ MEROVANE_GUARDED_BY(mutex_) = true;
  bool characterColumn_ MEROVANE_GUARDED_BY(mutex_) = true;
  std::uint32_t console_ MEROVANE_GUARDED_BY(mutex_) = 0;
  std::string extension_ MEROVANE_GUARDED_BY(mutex_);
  std::uint32_t sizeLimitMb_ MEROVANE_GUARDED_BY(mutex_) = 0;
  std::uint32_t flags_ MEROVANE_GUARDED_BY(mutex_) = 0;
  std::uint32_t openFirst_ MEROVANE_GUARDED_BY(mutex_) = 0;
  std::uint32_t openSecond_ MEROVANE_GUARDED_BY(mutex_) = 0;

  Target text_ MEROVANE_GUARDED_BY(mutex_);
  Target received_ MEROVANE_GUARDED_BY(mutex_);
  Target sent_ MEROVANE_GUARDED_BY(mutex_);
  // What is being put together, kept to spare allocations.
  std::string block_ MEROVANE_GUARDED_BY(mutex_);
};

}  // namespace merovane
