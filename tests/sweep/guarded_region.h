// Memory that ends where the process may not go.
#pragma once

#include <cstddef>
#include <span>

namespace merovane::sweep {

class GuardedRegion {
 public:
  static constexpr std::size_t kBytes = std::size_t{256} * 1024;

  GuardedRegion();
  GuardedRegion(const GuardedRegion&) = delete;
  GuardedRegion& operator=(const GuardedRegion&) = delete;
  ~GuardedRegion();

  // The last bytes before the guard.
  std::span<std::byte> Last(std::size_t bytes) { return {start_ + kBytes - bytes, bytes}; }

 private:
  std::byte* start_;
};

// Sets a variable of this process's environment, which the libraries read.
void SetEnvironment(const char* name, const char* value);

}  // namespace merovane::sweep
