// A library that runs a thread and ends it when it is unloaded, as ours does.
#include "platform/event.h"
#include "platform/thread.h"

#if defined(_WIN32)
#define PROBE_EXPORT extern "C" __declspec(dllexport)
#else
#define PROBE_EXPORT extern "C" __attribute__((visibility("default")))
#endif

// The test finds them by name.
PROBE_EXPORT int PlatformProbeAnswer();
PROBE_EXPORT void PlatformProbeStartThread(bool* endedInTime);

namespace {

using merovane::platform::Event;
using merovane::platform::Thread;

struct Worker {
  std::shared_ptr<Event> stop = std::make_shared<Event>();
  Thread thread;
  bool* endedInTime = nullptr;

  ~Worker() {
    stop->Set();
    if (endedInTime) *endedInTime = thread.WaitMs(10'000);
  }
} worker;

}  // namespace

int PlatformProbeAnswer() { return 42; }

void PlatformProbeStartThread(bool* endedInTime) {
  if (worker.thread.Start([stop = worker.stop] { stop->WaitMs(UINT32_MAX); })) {
    worker.endedInTime = endedInTime;
  }
}
