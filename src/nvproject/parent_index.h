// Finds the items of a module that is being read by their index.
#pragma once

#include <cstdint>
#include <unordered_map>

#include "nvproject/item.h"

namespace merovane::nvproject {

class ParentIndex {
 public:
  // Takes the items one after the other, in the order of their positions.
  void Add(std::int32_t index);

  // The position, in the module, of the first item of that index; kNoItem when there is none.
  std::uint32_t Find(std::int32_t index) const;

 private:
  // Items normally stand at the position that their index names; a map is only
  // kept from the first one on that does not.
  std::uint32_t inPlace_ = 0;
  std::uint32_t count_ = 0;
  std::unordered_map<std::int32_t, std::uint32_t> outOfPlace_;
};

}  // namespace merovane::nvproject
