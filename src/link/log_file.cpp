#include "link/log_file.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "platform/clock.h"
#include "platform/console.h"

namespace merovane {
namespace {

constexpr std::uint32_t kMaxBytesPerLine = 16;
constexpr std::size_t kMaxExtension = 259;
constexpr std::uint64_t kMb = std::uint64_t{1024} * 1024;

std::string_view Mark(LogDirection direction) {
  switch (direction) {
    case LogDirection::Received:
      return "<--";
    case LogDirection::Sent:
      return "-->";
    case LogDirection::Third:
      return "<<-";
    case LogDirection::Other:
      break;
  }
  return "---";
}

template <typename... Arguments>
std::string Format(const char* format, Arguments... arguments) {
  std::array<char, 128> text;
  const int length = std::snprintf(text.data(), text.size(), format, arguments...);
  return std::string(text.data(),
                     std::min<std::size_t>(static_cast<std::size_t>(length), text.size() - 1));
}

void AppendNumber(std::string& text, std::uint32_t value, int digits) {
  std::array<char, 10> reversed;
  int count = 0;
  do reversed[static_cast<std::size_t>(count++)] = static_cast<char>('0' + value % 10);
  while ((value /= 10) != 0);
  for (int i = count; i < digits; ++i) text += '0';
  while (count > 0) text += reversed[static_cast<std::size_t>(--count)];
}

void AppendHex(std::string& text, std::uint32_t value, int digits, const char* digitSet) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) text += digitSet[value >> shift & 0xF];
}

void AppendByteCount(std::string& text, std::uint32_t count) {
  AppendNumber(text, count, 1);
  text += "(0x";
  AppendHex(text, count, 8, "0123456789abcdef");
  text += ')';
}

void AppendStamp(std::string& text) {
  const platform::CalendarTime now = platform::LocalTime();
  const auto number = [&](char before, int value, int digits) {
    text += before;
    AppendNumber(text, static_cast<std::uint32_t>(value), digits);
  };
  number('[', now.year, 4);
  number('-', now.month, 2);
  number('-', now.day, 2);
  number(' ', now.hour, 2);
  number(':', now.minute, 2);
  number(':', now.second, 2);
  number(':', now.millisecond, 3);
  text += "] ";
}

std::string NameSuffix(std::uint32_t flags) {
  const platform::CalendarTime now = platform::LocalTime();
  if (flags & log_flags::kDateAndTimeInName) {
    return Format("_%04d_%02d_%02d_%02d_%02d_%02d_%03d", now.year, now.month, now.day, now.hour,
                  now.minute, now.second, now.millisecond);
  }
  if (flags & log_flags::kDateInName)
    return Format("_%04d_%02d_%02d", now.year, now.month, now.day);
  return {};
}

std::filesystem::path Resolve(const LogDirectory& directory) {
  using Kind = LogDirectory::Kind;
  if (directory.kind == Kind::Given) return platform::PathFromText(directory.folder);
  std::filesystem::path path = directory.kind == Kind::Temporary ? platform::TemporaryDirectory()
                               : directory.home.empty()          ? platform::ExecutableDirectory()
                                                                 : directory.home;
  path /= "Log";
  if (!directory.folder.empty()) path /= platform::PathFromText(directory.folder);
  return path;
}

}  // namespace

bool LogFile::SetOption(LogOption option, LogOptionValue value) {
  const platform::MutexLock lock(mutex_);
  if (option == LogOption::Directory) {
    auto* directory = std::get_if<LogDirectory>(&value);
    if (!directory) return false;
    directory_ = std::move(*directory);
    return true;
  }
  if (option == LogOption::BaseName || option == LogOption::Extension) {
    auto* text = std::get_if<std::string>(&value);
    if (!text) return false;
    if (option == LogOption::BaseName) {
      baseName_ = std::move(*text);
    } else {
      extension_ = text->substr(0, kMaxExtension);
    }
    return true;
  }
  const auto* number = std::get_if<std::uint32_t>(&value);
  if (!number) return false;
  switch (option) {
    case LogOption::BytesPerLine:
      bytesPerLine_ = *number == 0 ? kMaxBytesPerLine : std::min(*number, kMaxBytesPerLine);
      return true;
    case LogOption::TimeStamps:
      timeStamps_ = *number != 0;
      return true;
    case LogOption::Offsets:
      offsets_ = *number != 0;
      return true;
    case LogOption::CharacterColumn:
      characterColumn_ = *number != 0;
      return true;
    case LogOption::Console:
      if (*number > 2) return false;
      console_ = *number;
      platform::SetConsole(static_cast<platform::ConsoleState>(*number));
      return true;
    case LogOption::SizeLimitMb:
      sizeLimitMb_ = *number;
      return true;
    default:
      return false;
  }
}

LogOptionValue LogFile::Option(LogOption option) const {
  const platform::MutexLock lock(mutex_);
  switch (option) {
    case LogOption::Directory:
      return directory_;
    case LogOption::BaseName:
      return baseName_;
    case LogOption::BytesPerLine:
      return bytesPerLine_;
    case LogOption::TimeStamps:
      return std::uint32_t{timeStamps_};
    case LogOption::Offsets:
      return std::uint32_t{offsets_};
    case LogOption::CharacterColumn:
      return std::uint32_t{characterColumn_};
    case LogOption::Console:
      return console_;
    case LogOption::Extension:
      return extension_;
    case LogOption::SizeLimitMb:
      return sizeLimitMb_;
  }
  return std::uint32_t{0};
}

bool LogFile::Open(std::string_view name, std::uint32_t flags, std::uint32_t first,
                   std::uint32_t second) {
  const platform::MutexLock lock(mutex_);
  if ((flags & (log_flags::kText | log_flags::kData)) == 0) flags |= log_flags::kText;
  flags_ = flags;
  openFirst_ = first;
  openSecond_ = second;

  const std::filesystem::path given = platform::PathFromText(name.empty() ? baseName_ : name);
  const std::filesystem::path directory =
      given.is_absolute() ? given.parent_path() : Resolve(directory_);
  const std::string base = platform::TextFromPath(given.stem()) + NameSuffix(flags);
  const std::string ownExtension = platform::TextFromPath(given.extension());
  const auto open = [&](Target& target, const char* mark, const std::string& extension) {
    target = Target{};
    target.directory = directory;
    target.base = base + mark;
    target.extension = extension;
    return OpenTarget(target);
  };

  bool opened = true;
  if (flags & log_flags::kText) {
    opened = open(text_, "", ownExtension.empty() ? ".log" : ownExtension);
  }
  if (flags & log_flags::kData) {
    const std::string extension = !extension_.empty()    ? extension_
                                  : ownExtension.empty() ? ".bin"
                                                         : ownExtension;
    if (flags & log_flags::kReceivedData) opened = open(received_, "_Rd", extension) && opened;
    if (flags & log_flags::kSentData) opened = open(sent_, "_Wt", extension) && opened;
  }
  return opened;
}

bool LogFile::OpenTarget(Target& target) {
  const std::string roll = target.rolled == 0 ? "" : "_" + std::to_string(target.rolled);
  target.path = target.directory / platform::PathFromText(target.base + roll + target.extension);
  return target.file.Open(target.path);
}

bool LogFile::IsOpen() const {
  const platform::MutexLock lock(mutex_);
  return text_.file.IsOpen() || received_.file.IsOpen() || sent_.file.IsOpen();
}

std::filesystem::path LogFile::Path() const {
  const platform::MutexLock lock(mutex_);
  return text_.path;
}

void LogFile::Close() {
  const platform::MutexLock lock(mutex_);
  for (Target* target : {&text_, &received_, &sent_}) target->file.Close();
}

void LogFile::Write(Target& target, std::string_view block) {
  if (!target.file.IsOpen()) return;
  if (sizeLimitMb_ != 0 && target.file.Size() > sizeLimitMb_ * kMb) {
    target.file.Close();
    ++target.rolled;
    if (!OpenTarget(target)) return;
  }
  // A full disk costs log lines, never a command.
  static_cast<void>(target.file.Write(block));
  if (console_ != 0 && &target == &text_) platform::WriteConsole(block);
}

void LogFile::Text(std::string_view line) {
  const platform::MutexLock lock(mutex_);
  block_.clear();
  if (timeStamps_) AppendStamp(block_);
  block_ += line;
  block_ += "\r\n";
  Write(text_, block_);
}

void LogFile::Raw(std::string_view text) {
  const platform::MutexLock lock(mutex_);
  Write(text_, text);
}

void LogFile::Dump(std::span<const std::uint8_t> data, LogDirection direction,
                   std::uint32_t wholeBytes) {
  const platform::MutexLock lock(mutex_);
  if (direction == LogDirection::Received || direction == LogDirection::Sent) {
    Write(direction == LogDirection::Received ? received_ : sent_,
          {reinterpret_cast<const char*>(data.data()), data.size()});
  }
  if (!text_.file.IsOpen()) return;

  const auto bytes = static_cast<std::uint32_t>(data.size());
  block_.clear();
  if (timeStamps_) AppendStamp(block_);
  block_ += Mark(direction);
  block_ += ' ';
  AppendByteCount(block_, bytes);
  if (wholeBytes > bytes) {
    block_ += '/';
    AppendByteCount(block_, wholeBytes);
  }
  block_ += " Bytes\r\n";
  for (std::uint32_t at = 0; at < bytes; at += bytesPerLine_) {
    const auto line = data.subspan(at, std::min(bytesPerLine_, bytes - at));
    if (offsets_) {
      AppendHex(block_, at, 8, "0123456789abcdef");
      block_ += "h: ";
    }
    for (const std::uint8_t byte : line) {
      AppendHex(block_, byte, 2, "0123456789ABCDEF");
      block_ += ' ';
    }
    block_.append(3 * (bytesPerLine_ - line.size()), ' ');
    block_ += ';';
    if (characterColumn_) {
      block_ += ' ';
      for (const std::uint8_t byte : line) {
        block_ += byte >= 0x20 && byte < 0x7F ? static_cast<char>(byte) : '.';
      }
    }
    block_ += "\r\n";
  }
  Write(text_, block_);
}

}  // namespace merovane
