#include "nvproject/parent_index.h"

namespace merovane::nvproject {

void ParentIndex::Add(std::int32_t index) {
  const std::uint32_t position = count_++;
  if (inPlace_ == position && static_cast<std::uint32_t>(index) == position) {
    ++inPlace_;
  } else {
    outOfPlace_.try_emplace(index, position);
  }
}

std::uint32_t ParentIndex::Find(std::int32_t index) const {
  if (static_cast<std::uint32_t>(index) < inPlace_) return static_cast<std::uint32_t>(index);
  const auto found = outOfPlace_.find(index);
  return found == outOfPlace_.end() ? kNoItem : found->second;
}

}  // namespace merovane::nvproject
