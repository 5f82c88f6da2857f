#include "library/call.h"

#include <utility>

#include "library/failure.h"
#include "library/library.h"
#include "platform/clock.h"
#include "platform/message_queue.h"

namespace merovane::library {
namespace {

// Without a destructor: threads may outlive the library.
thread_local Call* running = nullptr;

}  // namespace

Call::Call(const ExportInfo& info, std::int32_t port, std::uint32_t limitMs)
    : info_(info),
      port_(port),
      limitMs_(limitMs),
      startMs_(platform::SystemClock().NowMs()),
      outer_(running) {
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

std::int32_t Call::Returned(std::int32_t result) noexcept {
  if (result == 0) return result;
  try {
    const std::int32_t port = port_ == 0 && evidence_ ? evidence_->port : port_;
    const std::uint32_t elapsedMs = platform::SystemClock().NowMs() - startMs_;
    TheLibrary().failures.Keep({&info_, port, limitMs_, elapsedMs, result, std::move(evidence_)},
                               platform::CurrentThreadId());
  } catch (...) {  // NOLINT(bugprone-empty-catch): the result says enough
  }
  return result;
}

}  // namespace merovane::library
