// A library that starts a thread when it is loaded and ends it when it is unloaded, and that loads
// another, as ours do.
#include "platform/event.h"
#include "platform/module.h"
#include "platform/thread.h"

#if defined(_WIN32)
#define PROBE_EXPORT extern "C" __declspec(dllexport)
#else
#define PROBE_EXPORT extern "C" __attribute__((visibility("default")))
#endif

// The test finds them by name.
// True as soon as the thread runs.
PROBE_EXPORT bool PlatformProbeRuns();
PROBE_EXPORT bool PlatformProbeFinds(const char* probe);
PROBE_EXPORT void PlatformProbeTellTheEnd(bool* endedInTime);
PROBE_EXPORT void PlatformProbeGiveUp();

namespace {

using merovane::platform::Event;
using merovane::platform::Module;
using merovane::platform::Thread;

struct Worker {
  struct Shared {
    Event running, stop;
  };
  std::shared_ptr<Shared> shared = std::make_shared<Shared>();
  Thread thread;
  bool* endedInTime = nullptr;

  Worker() {
    thread.StartWithoutQueue([shared = shared] {
      shared->running.Set();
      shared->stop.WaitMs(UINT32_MAX);
    });
  }
  ~Worker() {
    shared->stop.Set();
    const bool inTime = thread.WaitMs(10'000);
    if (endedInTime) *endedInTime = inTime;
  }
} worker;

}  // namespace

bool PlatformProbeRuns() { return worker.shared->running.WaitMs(60'000); }

bool PlatformProbeFinds(const char* probe) {
  Module module;
  if (!PlatformProbeRuns() || !module.Load(probe)) return false;
  const auto runs = reinterpret_cast<bool (*)()>(module.Find("PlatformProbeRuns"));
  return runs && runs();
}

void PlatformProbeTellTheEnd(bool* endedInTime) { worker.endedInTime = endedInTime; }

void PlatformProbeGiveUp() { worker.thread.Abandon(); }
