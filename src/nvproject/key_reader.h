// Reads the lines of project and module files: their keys and values, and what is wrong with them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {

// Opens a file for reading, by the path as project files write it; null on failure.
using OpenText = std::function<std::unique_ptr<std::istream>(const std::string& path)>;

// The files on disk. Directories, pipes and devices are refused: reading one need not end.
std::unique_ptr<std::istream> OpenRegularFile(const std::string& path);

// What is wrong with a file, though it could be read.
struct Problem {
  std::string file;
  std::uint32_t line = 0;  // from 1; 0 for the file as a whole
  std::string text;
};

class KeyReader {
 public:
  // A longer line comes in pieces of this length, each a line to the reader.
  static constexpr std::size_t kMaxPiece = 259;
  // Who made a file of nothing but mistakes is told of the first ones.
  static constexpr std::size_t kMaxProblems = 1000;

  // `file` is the file's name in `problems`, to which problems are added.
  KeyReader(std::unique_ptr<std::istream> stream, std::string file, std::vector<Problem>& problems);

  // Goes to the next line that has a key; false at the end of the file. Empty lines and comments,
  // both after any blanks, have none.
  bool Next();

  // Whether the line's first word, which white space ends, is this key.
  bool HasKey(std::string_view key) const {
    return rest_.starts_with(key) && (rest_.size() == key.size() || IsSpace(rest_[key.size()]));
  }

  // In a line of that key:
  // All that follows the first "=", the line end included; none without an "=".
  std::optional<std::string_view> Value(std::string_view key);
  // Put the value's first word, cut to fit, or its number into a field. A value without one leaves
  // the field as it was.
  void TakeWord(std::string_view key, std::size_t maxLength, std::string& field);
  template <class Number>
  void TakeNumber(std::string_view key, Number& field) {
    if (const auto value = Value(key)) {
      if (const auto number = ScanDecimal(*value)) field = static_cast<Number>(*number);
    }
  }

  std::uint32_t LineNumber() const { return lineNumber_; }
  void Report(std::uint32_t line, std::string text);

 private:
  void Fill();
  // The next piece, with the "\n" that ends its line ("\r\n" in the file as well), valid until the
  // next call. A zero byte ends a piece.
  bool NextPiece(std::string_view& piece);

  std::unique_ptr<std::istream> stream_;
  std::string file_;
  std::vector<Problem>& problems_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool exhausted_ = false;
  bool hasZeros_ = false;
  bool atLineStart_ = true;
  std::uint32_t lineNumber_ = 0;
  std::uint32_t lastCutLine_ = 0;
  std::string_view rest_;  // of the line, from its key on
};

}  // namespace merovane::nvproject
