#include "merovane/log_tool.h"

#include <fstream>
#include <iostream>
#include <vector>

#include "link/log_file.h"
#include "platform/files.h"

namespace merovane::tool {
namespace {

// Each has offsets of its own in the log.
constexpr std::size_t kPieceBytes = 1 << 20;

void SetOptions(LogFile& log, const RenderOptions& options) {
  const auto base =
      platform::PathFromText(options.recording == "-" ? "recording" : options.recording);
  log.SetOption(LogOption::Directory, LogDirectory{LogDirectory::Kind::Given, options.directory});
  log.SetOption(LogOption::BaseName, options.name.value_or(platform::TextFromPath(base.stem())));
  log.SetOption(LogOption::BytesPerLine, options.bytesPerLine);
  log.SetOption(LogOption::TimeStamps, std::uint32_t{options.timeStamps});
  log.SetOption(LogOption::Offsets, std::uint32_t{options.offsets});
  log.SetOption(LogOption::CharacterColumn, std::uint32_t{options.characters});
  if (options.console) log.SetOption(LogOption::Console, std::uint32_t{1});
  if (options.extension) log.SetOption(LogOption::Extension, *options.extension);
  log.SetOption(LogOption::SizeLimitMb, options.sizeLimitMb);
}

}  // namespace

int Render(const RenderOptions& options, std::ostream& out) {
  std::ifstream file;
  if (options.recording != "-") {
    file.open(platform::PathFromText(options.recording), std::ios::binary);
    if (!file.is_open()) throw Trouble(options.recording + ": cannot be read");
  }
  std::istream& recording = options.recording == "-" ? std::cin : file;
  LogFile log;
  SetOptions(log, options);
  const std::uint32_t dataFile =
      options.extension ? log_flags::kData | log_flags::kReceivedData : 0;
  if (!log.Open("", log_flags::kText | dataFile)) {
    throw Trouble(options.directory + ": a log cannot be written there");
  }
  std::uint64_t bytes = 0;
  std::vector<std::uint8_t> piece(kPieceBytes);
  while (recording) {
    recording.read(reinterpret_cast<char*>(piece.data()),
                   static_cast<std::streamsize>(piece.size()));
    const auto count = static_cast<std::size_t>(recording.gcount());
    if (count > 0) log.Dump(std::span(piece).first(count), LogDirection::Received);
    bytes += count;
  }
  out << platform::TextFromPath(log.Path()) << ": " << bytes << " bytes received\n";
  return kOk;
}

}  // namespace merovane::tool
