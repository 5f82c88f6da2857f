// What is known of calls that failed, in words.
#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "library/call.h"
#include "merovane/diagnostics.h"
#include "platform/mutex.h"

namespace merovane::library {

struct FailedCall {
  const ExportInfo* info;
  std::int32_t port;  // 0: none was named or reached
  std::uint32_t limitMs;
  std::uint32_t elapsedMs;
  std::int32_t result;
  std::optional<LinkEvidence> evidence;  // none: no link was reached
};

// Takes some milliseconds, since it looks who else has the device.
Merovane_Failure Describe(const FailedCall& call);

// The last failure of each port and of each thread. For any thread.
class FailureLog {
 public:
  void Keep(FailedCall call, std::uint32_t thread);
  // A port of 0 asks for the thread's.
  std::optional<FailedCall> Find(std::int32_t port, std::uint32_t thread) const;
  void Forget(std::int32_t port, std::uint32_t thread);

 private:
  mutable platform::Mutex mutex_;
  std::map<std::int32_t, FailedCall> ofPorts_ MEROVANE_GUARDED_BY(mutex_);
  std::map<std::uint32_t, FailedCall> ofThreads_ MEROVANE_GUARDED_BY(mutex_);
};

}  // namespace merovane::library
