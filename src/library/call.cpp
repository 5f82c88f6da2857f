#include "library/call.h"

#include <utility>

#include "library/call_record.h"
#include "library/call_recorder.h"
#include "library/failure.h"
#include "library/library.h"
#include "platform/clock.h"
#include "platform/message_queue.h"

namespace merovane::library {
namespace {

// How long the end of a session waits for its calls to be in the trace.
constexpr std::uint32_t kCompleteTraceMs = 200;

// Without a destructor: threads may outlive the library.
thread_local Call* running = nullptr;

}  // namespace

Call::Call(const ExportInfo& info, std::int32_t port, std::uint32_t limitMs,
           const std::uintptr_t* words)
    : info_(info),
      port_(port),
      limitMs_(limitMs),
      words_(words),
      begunMs_(platform::SystemClock().NowMs()),
      outer_(running),
      recorded_(TheLibrary().recorder.WantsCalls()),
      begun_(recorded_ ? Exchange::Clock::now() : Exchange::Clock::time_point()) {
  running = this;
}

Call::~Call() { running = outer_; }

void Call::Note(const PhoneLink& link) noexcept {
  if (!running) return;
  try {
    running->evidence_ = link.Evidence();
  } catch (...) {  // NOLINT(bugprone-empty-catch): without memory the failure says less
  }
}

void Call::Reached(std::int32_t port) {
  if (running) running->reachedPort_ = port;
}

ExchangeList* Call::Exchanges() {
  return running && running->recorded_ ? &running->exchanges_ : nullptr;
}

void Call::EndsSession() {
  if (running) running->endsSession_ = true;
}

std::int32_t Call::Returned(std::int32_t result) noexcept {
  const bool failed = result != 0 && info_.returns == ExportInfo::Returns::Result;
  if (!failed && !recorded_) return result;
  try {
    std::optional<FailedCall> failure;
    if (failed) {
      const std::uint32_t elapsedMs = platform::SystemClock().NowMs() - begunMs_;
      failure = {&info_, Port(), limitMs_, elapsedMs, result, evidence_};
    }
    if (recorded_) Tell(result, failure);
    if (failure) TheLibrary().failures.Keep(std::move(*failure), platform::CurrentThreadId());
    if (recorded_ && endsSession_) {
      static_cast<void>(TheLibrary().recorder.Flush(kCompleteTraceMs));
    }
  } catch (...) {  // NOLINT(bugprone-empty-catch): the result says enough
  }
  return result;
}

std::int32_t Call::Port() const {
  if (port_ != 0) return port_;
  return evidence_ ? evidence_->port : reachedPort_;
}

void Call::Tell(std::int32_t result, const std::optional<FailedCall>& failure) {
  CallRecorder& recorder = TheLibrary().recorder;
  CallRecord record;
  record.info = &info_;
  record.port = Port();
  record.thread = platform::CurrentThreadId();
  record.returned = platform::LocalTime();
  record.begun = begun_;
  record.ended = Exchange::Clock::now();
  record.result = result;
  record.trace = recorder.Trace();
  record.CopyArguments(words_);
  record.exchanges = std::move(exchanges_);
  record.failure = failure;
  recorder.Tell(std::move(record));
}

}  // namespace merovane::library
