// The full dotted path of an item, from its parent's path and its own name.
#pragma once

#include <array>
#include <string_view>

#include "nvproject/item.h"

namespace merovane::nvproject {

// Builds paths in a buffer of its own.
class FullPathBuilder {
 public:
  // The path of an item that has a parent; `parent` is null when no item of that index is known,
  // and the path then starts empty. Cut to what a path holds; valid until the next call.
  std::string_view Build(const Item* parent, std::string_view name);

 private:
  void Append(std::string_view text);

  std::array<char, kMaxFullPath> buffer_;
  std::size_t length_ = 0;
};

}  // namespace merovane::nvproject
