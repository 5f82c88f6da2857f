#include "nvproject/text_arena.h"

#include <cassert>
#include <cstring>

namespace merovane::nvproject {

std::string_view TextArena::Add(std::string_view text) {
  assert(text.size() <= kBlockBytes);
  if (text.empty()) return {};
  if (text.size() > kBlockBytes - used_) {
    blocks_.push_back(std::unique_ptr<char[]>(new char[kBlockBytes]));
    used_ = 0;
  }
  char* const place = blocks_.back().get() + used_;
  std::memcpy(place, text.data(), text.size());
  used_ += text.size();
  return {place, text.size()};
}

}  // namespace merovane::nvproject
