#include "support/log_reader.h"

#include <gtest/gtest.h>

#include <regex>

#include "platform/files.h"
#include "support/temp_directory.h"

namespace merovane::test {

LogReader::LogReader(int port, std::string_view name, const std::filesystem::path& home)
    : folder_((home.empty() ? platform::ExecutableDirectory() : home) / "Log"),
      fileName_("Com" + std::to_string(port) + "_" + std::string(name) + ".txt") {}

LogReader::~LogReader() {
  std::error_code ignored;
  std::filesystem::remove(File(), ignored);
}

std::filesystem::path LogReader::File() const {
  std::error_code error;
  for (const auto& day : std::filesystem::directory_iterator(folder_, error)) {
    auto file = day.path() / fileName_;
    if (std::filesystem::exists(file)) return file;
  }
  return {};
}

std::string LogReader::Whole() const { return FileText(File()); }

std::vector<std::string> LogReader::Take() {
  static const std::regex kStamped(R"(\[\d{4}-\d\d-\d\d \d\d:\d\d:\d\d:\d{3}\] (.*))");
  static const std::regex kDumpHead(R"((<--|-->|<<-|---) \d+\(0x[0-9a-f]{8}\).* Bytes)");
  static const std::regex kDumpLine(R"([0-9a-f]{8}h: ((?:[0-9A-F]{2} )*[0-9A-F]{2}) *;.*)");
  const std::string whole = Whole();
  std::string_view rest = std::string_view(whole).substr(seenBytes_);
  seenBytes_ = whole.size();

  std::vector<std::string> lines;
  while (!rest.empty()) {
    const std::size_t end = rest.find("\r\n");
    if (end == std::string_view::npos) {
      ADD_FAILURE() << "a log line without its end: " << rest;
      break;
    }
    const std::string line(rest.substr(0, end));
    rest.remove_prefix(end + 2);
    std::smatch match;
    if (std::regex_match(line, match, kStamped)) {
      const std::string text = match[1];
      std::smatch head;
      lines.push_back(std::regex_match(text, head, kDumpHead) ? head[1].str() : text);
    } else if (std::regex_match(line, match, kDumpLine) && !lines.empty()) {
      lines.back() += " " + match[1].str();
    } else if (!line.empty() && line != std::string(60, '-')) {
      ADD_FAILURE() << "not a log line: " << line;
    }
  }
  return lines;
}

std::vector<std::string> LogReader::TakeText() {
  std::vector<std::string> lines = Take();
  std::erase_if(lines, [](const std::string& line) {
    return line.starts_with("--> ") || line.starts_with("<-- ");
  });
  return lines;
}

}  // namespace merovane::test
