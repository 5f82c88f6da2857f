// How a tool ends.
#pragma once

#include <stdexcept>

namespace merovane::tool {

// Like diff's: 1 says that something is different or wrong, 2 that it could not be found out or
// done, a wrong command line among the reasons.
inline constexpr int kOk = 0;
inline constexpr int kDifferent = 1;
inline constexpr int kTrouble = 2;

// Something that cannot be used; the text is for people.
class Trouble : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace merovane::tool
