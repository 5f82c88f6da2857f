// Names that one program of the machine has at a time.
#pragma once

#include <memory>
#include <string>

namespace merovane::platform {

// Destroying it gives the name up, and so does the end of the program, however that comes.
class NameClaim {
 public:
  virtual ~NameClaim() = default;
};

// Null when another claim holds the name, of this program or of another. A name is 1 to 100
// letters, digits and hyphens.
std::unique_ptr<NameClaim> ClaimName(const std::string& name);

}  // namespace merovane::platform
