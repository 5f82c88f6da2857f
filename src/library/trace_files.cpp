#include "library/trace_files.h"

#include "library/call_text.h"
#include "link/port_log.h"

namespace merovane::library {
void TraceFiles::Line(const std::filesystem::path& home, std::int32_t number,
                      std::string_view line) {
  std::filesystem::path folder = PortLog::FolderOfToday(home);
  if (folder != folder_) {
    Write();
    Close();
    folder_ = std::move(folder);
  }
  Port& port = ports_[number];
  port.kept += line;
  port.kept += '\n';
  ++port.keptLines;
  keptBytes_ += line.size() + 1;
}

void TraceFiles::Overrun(const std::filesystem::path& home, std::int32_t port,
                         std::uint64_t lines) {
  Line(home, port, GapInJson(port, lines, "calls came faster than they could be written"));
  Note(port, 0, lines);
}

void TraceFiles::Open() {
  for (auto& [number, port] : ports_) {
    if (port.kept.empty() || port.file.IsOpen()) continue;
    static_cast<void>(port.file.Open(PathOf(number)));
  }
}

void TraceFiles::Write() {
  Open();
  for (auto& [number, port] : ports_) Write(number, port);
  keptBytes_ = 0;
}

void TraceFiles::Close() {
  for (auto& [number, port] : ports_) port.file.Close();
}

std::filesystem::path TraceFiles::PathOf(std::int32_t port) const {
  return folder_ / ("Com" + std::to_string(port) + "_Trace.jsonl");
}

void TraceFiles::Write(std::int32_t number, Port& port) {
  if (port.kept.empty()) return;
  std::string text;
  if (!port.endsInLine) text += '\n';
  if (port.unwritten != 0) {
    text += GapInJson(number, port.unwritten, "the file could not be written") + '\n';
  }
  text += port.kept;
  const std::uint64_t before = port.file.Size();
  if (port.file.Write(text)) {
    port.unwritten = 0;
    port.endsInLine = true;
  } else {
    // Of a write that failed the system may have taken a part, whose lines then stand twice
    // counted: in the file and as missing.
    if (port.file.Size() != before) port.endsInLine = false;
    port.unwritten += port.keptLines;
    Note(number, port.keptLines, 0);
  }
  port.kept.clear();
  port.keptLines = 0;
}

void TraceFiles::Note(std::int32_t port, std::uint64_t unwritten, std::uint64_t overrun) {
  const platform::MutexLock lock(mutex_);
  Gap& gap = gaps_[port];
  gap.file = PathOf(port);
  gap.unwritten += unwritten;
  gap.overrun += overrun;
}

std::vector<TraceFiles::Gap> TraceFiles::Gaps() const {
  const platform::MutexLock lock(mutex_);
  std::vector<Gap> gaps;
  for (const auto& [port, gap] : gaps_) gaps.push_back(gap);
  return gaps;
}

}  // namespace merovane::library
