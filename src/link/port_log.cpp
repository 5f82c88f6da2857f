#include "link/port_log.h"

#include <array>
#include <cstdio>
#include <string>

#include "platform/clock.h"

namespace merovane {
namespace {

constexpr std::uint32_t kPortLogFlags = 0x7000;
constexpr std::uint32_t kPortLogFirst = 5;
constexpr std::uint32_t kPortLogSecond = 300;

// The folder's date is UTC while time stamps are local: one folder a day wherever stations stand.
std::string DayFolder() {
  const platform::CalendarTime day = platform::UtcTime();
  std::array<char, 40> text;
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", day.year, day.month, day.day);
  return text.data();
}

}  // namespace

std::filesystem::path PortLog::FolderOfToday(const std::filesystem::path& home) {
  return home / "Log" / DayFolder();
}

bool PortLog::Open(const std::filesystem::path& home, std::string_view fileName) {
  file_.SetOption(LogOption::Directory,
                  LogDirectory{LogDirectory::Kind::Executable, DayFolder(), home});
  if (!file_.Open(fileName, kPortLogFlags, kPortLogFirst, kPortLogSecond)) return false;
  file_.Raw("\r\n" + std::string(60, '-') + "\r\n");
  return true;
}

void PortLog::Line(std::string_view text) { file_.Text(text); }

void PortLog::Data(std::span<const std::uint8_t> bytes, bool sent) {
  if (!bytes.data()) return;
  file_.Dump(bytes, sent ? LogDirection::Sent : LogDirection::Received);
}

std::string PortLog::ResultLine(Result code, std::string_view name) {
  std::array<char, 96> text;
  std::snprintf(text.data(), text.size(), "Error Code = %d (%.*s)", static_cast<int>(code),
                static_cast<int>(name.size()), name.data());
  return text.data();
}

std::string PortLog::OpenLine(std::int32_t port, std::int32_t baudRate) {
  std::array<char, 64> text;
  std::snprintf(text.data(), text.size(), "Open (Port = %d, Baudrate = %d)", static_cast<int>(port),
                static_cast<int>(baudRate));
  return text.data();
}

}  // namespace merovane
