// Keeps texts that live as long as their owner, packed into large blocks.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace merovane::nvproject {

class TextArena {
 public:
  // A copy of the text; its place never changes. Texts are short: at most a block.
  std::string_view Add(std::string_view text);

 private:
  static constexpr std::size_t kBlockBytes = 32768;

  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t used_ = kBlockBytes;  // of the last block
};

}  // namespace merovane::nvproject
