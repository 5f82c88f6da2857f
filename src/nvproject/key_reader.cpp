#include "nvproject/key_reader.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <utility>

#include "platform/files.h"

namespace merovane::nvproject {
namespace {

constexpr std::size_t kBufferBytes = 65536;

}  // namespace

std::unique_ptr<std::istream> OpenRegularFile(const std::string& path) {
  const std::filesystem::path file = platform::PathFromText(path);
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return nullptr;
  // Bytes as they are: line ends are translated here, alike on every system.
  auto stream = std::make_unique<std::ifstream>(file, std::ios::binary);
  if (!stream->is_open()) return nullptr;
  return stream;
}

KeyReader::KeyReader(std::unique_ptr<std::istream> stream, std::string file,
                     std::vector<Problem>& problems)
    : stream_(std::move(stream)),
      file_(std::move(file)),
      problems_(problems),
      buffer_(kBufferBytes) {}

bool KeyReader::Next() {
  std::string_view piece;
  while (NextPiece(piece)) {
    const std::size_t start = std::min(piece.find_first_not_of(' '), piece.size());
    piece.remove_prefix(start);
    if (piece.empty() || piece.front() == '#') continue;
    rest_ = SkipSpace(piece);
    if (!rest_.empty()) return true;
  }
  return false;
}

std::optional<std::string_view> KeyReader::Value(std::string_view key) {
  // Mostly only blanks stand before the "=": that is sooner found than searched for.
  std::size_t equals = key.size();
  while (equals < rest_.size() && rest_[equals] == ' ') ++equals;
  if (equals < rest_.size() && rest_[equals] != '=') equals = rest_.find('=', equals);
  if (equals >= rest_.size()) {
    Report(lineNumber_, std::string(key) + " has no \"=\"");
    return std::nullopt;
  }
  return rest_.substr(equals + 1);
}

void KeyReader::TakeWord(std::string_view key, std::size_t maxLength, std::string& field) {
  const auto value = Value(key);
  if (!value) return;
  const std::string_view word = FirstWord(*value);
  if (!word.empty()) field = word.substr(0, maxLength);
  if (word.size() > maxLength) {
    Report(lineNumber_,
           std::string(key) + " is cut to " + std::to_string(maxLength) + " characters");
  }
}

void KeyReader::Report(std::uint32_t line, std::string text) {
  if (problems_.size() < kMaxProblems) problems_.push_back({file_, line, std::move(text)});
}

void KeyReader::Fill() {
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  stream_->read(buffer_.data() + end_, static_cast<std::streamsize>(buffer_.size() - end_));
  const auto count = static_cast<std::size_t>(stream_->gcount());
  exhausted_ = count < buffer_.size() - end_;
  end_ += count;
  hasZeros_ = std::memchr(buffer_.data(), 0, end_) != nullptr;
}

bool KeyReader::NextPiece(std::string_view& piece) {
  // One more than a piece shows whether a piece's last "\r" belongs to a line end.
  constexpr std::size_t kWindow = kMaxPiece + 1;
  if (end_ - begin_ < kWindow && !exhausted_) Fill();
  if (begin_ == end_) return false;

  char* const start = buffer_.data() + begin_;
  const std::size_t window = std::min(end_ - begin_, kWindow);
  auto* const newline = static_cast<char*>(std::memchr(start, '\n', window));
  std::size_t size = std::min(window, kMaxPiece);
  std::size_t consumed = size;
  if (atLineStart_) {
    ++lineNumber_;
  } else if (lastCutLine_ != lineNumber_) {
    lastCutLine_ = lineNumber_;
    Report(lineNumber_, "the line is cut: its rest is read as another");
  }
  atLineStart_ = false;
  if (newline != nullptr) {
    const auto before = static_cast<std::size_t>(newline - start);
    const bool carriageReturn = before > 0 && newline[-1] == '\r';
    if (carriageReturn) newline[-1] = '\n';
    if (carriageReturn || before < kMaxPiece) {
      consumed = before + 1;
      size = carriageReturn ? before : consumed;
      atLineStart_ = true;
    }
  }
  begin_ += consumed;
  piece = {start, size};
  if (hasZeros_) piece = piece.substr(0, piece.find('\0'));
  return true;
}

}  // namespace merovane::nvproject
