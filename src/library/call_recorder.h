// Tells of calls: in a trace beside the logs, and to the program's listener; on a thread of its
// own, so that no call waits for a disk or a listener.
#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "library/call_record.h"
#include "library/trace_files.h"
#include "link/log_observer.h"
#include "merovane/diagnostics.h"
#include "platform/mutex.h"
#include "platform/thread.h"

namespace merovane::library {

// What the number means under which the settings file keeps it.
constexpr Merovane_Trace TraceOfSetting(std::uint32_t number) {
  if (number == MEROVANE_TRACE_PAYLOADS) return MEROVANE_TRACE_PAYLOADS;
  return number == 0 ? MEROVANE_TRACE_OFF : MEROVANE_TRACE_CALLS;
}

// For any thread.
class CallRecorder final : public LogObserver {
 public:
  CallRecorder();
  // What was told before is written; the listener is called no more.
  ~CallRecorder() override;

  // Where the trace goes: into the folder of the day's logs there.
  void SetFolder(const std::filesystem::path& folder);
  // False when the system gives no thread.
  bool SetTrace(Merovane_Trace trace);
  // The same while the library is being loaded: no thread begins before the first call.
  void SetTraceAtLoad(Merovane_Trace trace);
  Merovane_Trace Trace() const { return static_cast<Merovane_Trace>(trace_.load()); }
  // When it returns, the former listener is not being called, unless it calls this itself. False
  // when the system gives no thread.
  bool SetListener(Merovane_Listener listener, void* context);

  bool WantsCalls() const { return trace_ != MEROVANE_TRACE_OFF || listens_; }
  bool WantsLines() const override { return listens_; }
  // What comes faster than it is written and listened to is dropped, and counted.
  void Tell(CallRecord record);
  void TellLine(std::int32_t port, std::string line) override;

  // Waits until all that was told before is written and has been listened to.
  bool Flush(std::uint32_t limitMs);
  std::vector<TraceFiles::Gap> Gaps() const;

 private:
  class Teller;

  bool Start();

  std::atomic<std::uint32_t> trace_{MEROVANE_TRACE_OFF};
  std::atomic<bool> listens_{false};
  // Its thread's, too, which can outlive this when a disk or a listener holds it.
  const std::shared_ptr<Teller> teller_;
  platform::Mutex startMutex_;
  platform::Thread thread_;  // under that mutex, and the destructor's
};

}  // namespace merovane::library
