#include "platform/posix/posix_api.h"

#include <unistd.h>

namespace merovane::platform {

bool UniqueDescriptor::Close() {
  const int value = std::exchange(value_, -1);
  return value < 0 || close(value) == 0;
}

}  // namespace merovane::platform
