#include "library/call_recorder.h"

#include <chrono>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "library/call_text.h"
#include "platform/event.h"
#include "platform/message_queue.h"

namespace merovane::library {
namespace {

// What waits to be told takes at most so much memory, and once more so much what is being told.
constexpr std::size_t kMostWaitingBytes = std::size_t{16} * 1024 * 1024;
// How often the thread looks for calls. Waking it for each would cost a call that comes after a
// pause 20 us, against 1 us for the rest of its record.
constexpr std::uint32_t kLookMs = 10;
constexpr std::uint32_t kEndLimitMs = 1000;

// A call, or a log line.
struct Item {
  std::optional<CallRecord> call;
  std::int32_t port = 0;
  std::uint32_t thread = 0;
  std::string line;  // of the log; of a call once it is put into words

  std::size_t Bytes() const { return sizeof *this + line.capacity() + (call ? call->Bytes() : 0); }
  bool IsTraced() const { return call && call->trace != MEROVANE_TRACE_OFF; }
};

struct Dropped {
  std::uint64_t items = 0;
  std::uint64_t traced = 0;  // of these
};

// Want of memory, or a listener that throws, costs this step and not the thread.
template <typename Step>
void Attempt(const Step& step) {
  try {
    step();
  } catch (...) {  // NOLINT(bugprone-empty-catch): this one goes untold
  }
}

}  // namespace

class CallRecorder::Teller {
 public:
  void SetFolder(const std::filesystem::path& folder);
  void SetListener(Merovane_Listener listener, void* context);
  // False when there is no thread to tell it: one must be begun.
  bool Add(std::unique_ptr<Item> item);
  // False when a thread works, or was to.
  bool BeginWork();
  void HasNoThread();
  // The thread ends once it has told what it was given; the next item begins another.
  void Retire();
  bool Flush(std::uint32_t limitMs);
  std::vector<TraceFiles::Gap> Gaps() const { return files_.Gaps(); }

  // What the thread does until the stop, at which it tells what is left.
  void Work();
  // Takes no lock: the end of the process kills threads with what they hold.
  void Stop();
  // Writes what a thread that was killed has left; not when that one held the queue.
  void WriteRest();

 private:
  struct Batch {
    std::vector<std::unique_ptr<Item>> items;
    std::map<std::int32_t, Dropped> dropped;  // by port, after the items
    std::filesystem::path folder;
    std::atomic<std::size_t> written{0};  // of the items
  };

  static void Write(Batch& batch, TraceFiles& files);

  bool Take(Batch& batch) MEROVANE_REQUIRES(mutex_);
  // The next batch; false when it is time to end.
  bool Wait();
  void TellListener();
  void Listen(Merovane_Event event, std::int32_t port, const std::string& text);

  std::atomic<bool> stops_{false};
  std::atomic<bool> retires_{false};
  // Wakes the thread when somebody waits for it.
  platform::Event wake_;

  platform::Mutex mutex_;
  platform::ConditionVariable told_;
  Batch waiting_ MEROVANE_GUARDED_BY(mutex_);
  std::size_t waitingBytes_ MEROVANE_GUARDED_BY(mutex_) = 0;
  bool works_ MEROVANE_GUARDED_BY(mutex_) = false;
  // How many batches were begun, and told whole.
  std::uint64_t begunBatches_ MEROVANE_GUARDED_BY(mutex_) = 0;
  std::uint64_t toldBatches_ MEROVANE_GUARDED_BY(mutex_) = 0;
  Merovane_Listener listener_ MEROVANE_GUARDED_BY(mutex_) = nullptr;
  void* context_ MEROVANE_GUARDED_BY(mutex_) = nullptr;
  // Of the listener that is being called, while one is.
  std::uint64_t listeners_ MEROVANE_GUARDED_BY(mutex_) = 0;
  std::uint64_t calledListener_ MEROVANE_GUARDED_BY(mutex_) = 0;
  bool calling_ MEROVANE_GUARDED_BY(mutex_) = false;
  std::atomic<std::uint32_t> thread_{0};

  // The thread's own, but for the files' gaps, until it has ended.
  TraceFiles files_;
  Batch batch_;
};

void CallRecorder::Teller::SetFolder(const std::filesystem::path& folder) {
  const platform::MutexLock lock(mutex_);
  waiting_.folder = folder;
}

void CallRecorder::Teller::SetListener(Merovane_Listener listener, void* context) {
  const platform::MutexLock lock(mutex_);
  listener_ = listener;
  context_ = context;
  const std::uint64_t mine = ++listeners_;
  if (thread_ == platform::CurrentThreadId()) return;
  while (calling_ && calledListener_ < mine) told_.Wait(mutex_);
}

bool CallRecorder::Teller::Add(std::unique_ptr<Item> item) {
  const std::size_t bytes = item->Bytes();
  const platform::MutexLock lock(mutex_);
  if (waitingBytes_ + bytes > kMostWaitingBytes) {
    Dropped& dropped = waiting_.dropped[item->port];
    ++dropped.items;
    if (item->IsTraced()) ++dropped.traced;
    return works_;
  }
  waiting_.items.push_back(std::move(item));
  waitingBytes_ += bytes;
  return works_;
}

bool CallRecorder::Teller::BeginWork() {
  const platform::MutexLock lock(mutex_);
  if (works_) return false;
  works_ = true;
  retires_ = false;
  return true;
}

void CallRecorder::Teller::HasNoThread() {
  const platform::MutexLock lock(mutex_);
  works_ = false;
}

void CallRecorder::Teller::Retire() {
  retires_ = true;
  wake_.Set();
}

bool CallRecorder::Teller::Flush(std::uint32_t limitMs) {
  // The listener would wait for itself.
  if (thread_ == platform::CurrentThreadId()) return false;
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(limitMs);
  const platform::MutexLock lock(mutex_);
  const bool waits = !waiting_.items.empty() || !waiting_.dropped.empty();
  const std::uint64_t last = begunBatches_ + (waits ? 1 : 0);
  if (waits) wake_.Set();
  while (toldBatches_ < last && told_.WaitUntil(mutex_, end)) {
  }
  return toldBatches_ >= last;
}

void CallRecorder::Teller::Work() {
  thread_ = platform::CurrentThreadId();
  while (Wait()) {
    Write(batch_, files_);
    TellListener();
    {
      const platform::MutexLock lock(mutex_);
      ++toldBatches_;
      told_.NotifyAll();
    }
  }
  thread_ = 0;
}

bool CallRecorder::Teller::Take(Batch& batch) {
  if (waiting_.items.empty() && waiting_.dropped.empty()) return false;
  batch.items.clear();
  batch.dropped.clear();
  batch.written = 0;
  std::swap(batch.items, waiting_.items);
  std::swap(batch.dropped, waiting_.dropped);
  batch.folder = waiting_.folder;
  waitingBytes_ = 0;
  ++begunBatches_;
  return true;
}

bool CallRecorder::Teller::Wait() {
  for (;;) {
    const bool ends = stops_ || retires_;
    static_cast<void>(wake_.WaitMs(ends ? 0 : kLookMs));
    const platform::MutexLock lock(mutex_);
    if (!stops_) wake_.Reset();
    if (Take(batch_)) return true;
    if (!ends) continue;
    works_ = false;
    return false;
  }
}

void CallRecorder::Teller::Write(Batch& batch, TraceFiles& files) {
  for (std::size_t at = batch.written; at < batch.items.size(); ++at) {
    Item& item = *batch.items[at];
    Attempt([&] {
      if (item.call) item.line = InJson(*item.call);
      if (item.IsTraced()) files.Line(batch.folder, item.port, item.line);
    });
    if (!files.IsFull() && at + 1 < batch.items.size()) continue;
    Attempt([&] { files.Open(); });
    // Ahead of the write, which the system completes also for a thread that it kills meanwhile.
    batch.written = at + 1;
    Attempt([&] { files.Write(); });
  }
  Attempt([&] {
    for (const auto& [port, dropped] : batch.dropped) {
      if (dropped.traced != 0) files.Overrun(batch.folder, port, dropped.traced);
    }
    files.Write();
  });
  files.Close();
}

void CallRecorder::Teller::TellListener() {
  for (std::unique_ptr<Item>& item : batch_.items) {
    // What a listener does is not told to itself, which would never end.
    if (item->thread != thread_ && !item->line.empty()) {
      Listen(item->call ? MEROVANE_EVENT_CALL : MEROVANE_EVENT_LOG_LINE, item->port, item->line);
    }
    item.reset();
  }
  for (const auto& entry : batch_.dropped) {
    Attempt(
        [&] { Listen(MEROVANE_EVENT_DROPPED, entry.first, std::to_string(entry.second.items)); });
  }
}

void CallRecorder::Teller::Listen(Merovane_Event event, std::int32_t port,
                                  const std::string& text) {
  Merovane_Listener listener = nullptr;
  void* context = nullptr;
  {
    const platform::MutexLock lock(mutex_);
    // A program that ends may have ended already what its listener stands on.
    if (!listener_ || stops_) return;
    listener = listener_;
    context = context_;
    calling_ = true;
    calledListener_ = listeners_;
  }
  Attempt([&] { listener(context, event, port, text.c_str()); });
  const platform::MutexLock lock(mutex_);
  calling_ = false;
  told_.NotifyAll();
}

void CallRecorder::Teller::Stop() {
  stops_ = true;
  wake_.Set();
}

void CallRecorder::Teller::WriteRest() {
  // Not those that the thread was working on.
  TraceFiles files;
  if (batch_.written < batch_.items.size()) Write(batch_, files);
  if (!mutex_.TryLock()) return;
  Batch batch;
  static_cast<void>(Take(batch));
  mutex_.Unlock();
  Write(batch, files);
}

CallRecorder::CallRecorder() : teller_(std::make_shared<Teller>()) {}

CallRecorder::~CallRecorder() {
  teller_->Stop();
  if (thread_.WaitMs(kEndLimitMs)) {
    teller_->WriteRest();
  } else {
    thread_.Abandon();
  }
}

void CallRecorder::SetFolder(const std::filesystem::path& folder) { teller_->SetFolder(folder); }

bool CallRecorder::SetTrace(Merovane_Trace trace) {
  if (trace != MEROVANE_TRACE_OFF && !Start()) return false;
  trace_ = trace;
  if (!WantsCalls()) teller_->Retire();
  return true;
}

void CallRecorder::SetTraceAtLoad(Merovane_Trace trace) { trace_ = trace; }

bool CallRecorder::SetListener(Merovane_Listener listener, void* context) {
  if (listener && !Start()) return false;
  listens_ = listener != nullptr;
  teller_->SetListener(listener, context);
  // Also while calls are traced: a program whose language waits for the threads that were in its
  // code would wait for this one as it ends.
  if (!listener) teller_->Retire();
  return true;
}

bool CallRecorder::Start() {
  const platform::MutexLock lock(startMutex_);
  if (!teller_->BeginWork()) return true;
  // Once it runs, an unloading library can wait for its end. The one before has told all.
  if (thread_.WaitMs(kEndLimitMs) && thread_.Start([teller = teller_] { teller->Work(); })) {
    return true;
  }
  teller_->HasNoThread();
  return false;
}

void CallRecorder::Tell(CallRecord record) {
  auto item = std::make_unique<Item>();
  item->port = record.port;
  item->thread = record.thread;
  item->call = std::move(record);
  if (!teller_->Add(std::move(item))) static_cast<void>(Start());
}

void CallRecorder::TellLine(std::int32_t port, std::string line) {
  auto item = std::make_unique<Item>();
  item->port = port;
  item->thread = platform::CurrentThreadId();
  item->line = std::move(line);
  if (!teller_->Add(std::move(item))) static_cast<void>(Start());
}

bool CallRecorder::Flush(std::uint32_t limitMs) { return teller_->Flush(limitMs); }

std::vector<TraceFiles::Gap> CallRecorder::Gaps() const { return teller_->Gaps(); }

}  // namespace merovane::library
