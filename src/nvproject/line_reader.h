// Reads a text file line by line, in pieces of a bounded length.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <istream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace merovane::nvproject {

// Opens a file for reading, by the path as project files write it; null on failure.
using OpenText = std::function<std::unique_ptr<std::istream>(const std::string& path)>;

// The files on disk. Directories, pipes and devices are refused: reading one need not end.
std::unique_ptr<std::istream> OpenRegularFile(const std::string& path);

class LineReader {
 public:
  // A longer line comes in pieces of this length, each a line to the reader.
  static constexpr std::size_t kMaxPiece = 259;

  explicit LineReader(std::unique_ptr<std::istream> stream);

  // The next piece, with the "\n" that ends its line ("\r\n" in the file as well), valid until the
  // next call. A zero byte ends a piece. False at the end of the file.
  bool Next(std::string_view& piece);

  // The number of the line, from 1, that the last piece belongs to.
  std::uint32_t LineNumber() const { return lineNumber_; }

 private:
  void Fill();

  std::unique_ptr<std::istream> stream_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool exhausted_ = false;
  bool hasZeros_ = false;
  bool atLineStart_ = true;
  std::uint32_t lineNumber_ = 0;
};

}  // namespace merovane::nvproject
