// A name is that of a mutex that nobody takes: the system frees it with the program.
#include "platform/name_claim.h"

#include <utility>

#include "platform/win32/windows_api.h"

namespace merovane::platform {
namespace {

class MutexClaim final : public NameClaim {
 public:
  explicit MutexClaim(UniqueHandle mutex) : mutex_(std::move(mutex)) {}

 private:
  UniqueHandle mutex_;
};

}  // namespace

std::unique_ptr<NameClaim> ClaimName(const std::string& name) {
  UniqueHandle mutex(CreateMutexW(nullptr, FALSE, WideFromNarrow("Global\\" + name).c_str()));
  if (!mutex || GetLastError() == ERROR_ALREADY_EXISTS) return nullptr;
  return std::make_unique<MutexClaim>(std::move(mutex));
}

}  // namespace merovane::platform
