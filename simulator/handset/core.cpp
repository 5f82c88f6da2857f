#include "handset/core.h"

#include <algorithm>
#include <asio/post.hpp>
#include <cstdio>
#include <future>
#include <stdexcept>

#include "parts/parts.h"

namespace handset {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint8_t kRefusedSubtype = 2;
// A station that does not read loses unsolicited frames, as on a line without flow control.
constexpr std::size_t kUnsolicitedBacklogLimit = 65536;
constexpr milliseconds kDrainPoll{5};
constexpr milliseconds kDrainLimit{2000};
// From the last byte of an answer to the fall: a station must get the chance to read it.
constexpr milliseconds kRestartDelay{100};
constexpr milliseconds kPortRetry{100};
// A handset without time of its own still leaves some to the machine.
constexpr milliseconds kShortestTask{1};
constexpr std::size_t kTranscriptPayloadBytes = 64;

std::string Describe(const char* direction, const Frame& frame) {
  std::string line = std::string(direction) + " " + std::to_string(frame.type) + "/" +
                     std::to_string(frame.subtype);
  if (frame.sequence != 0) line += " sequence " + std::to_string(frame.sequence);
  const std::size_t shown = std::min(frame.payload.size(), kTranscriptPayloadBytes);
  if (shown > 0) line += "  " + ToHex(std::span(frame.payload).first(shown));
  if (shown < frame.payload.size()) {
    line += " … (" + std::to_string(frame.payload.size()) + " bytes)";
  }
  return line;
}

void Check(const HandsetOptions& options) {
  for (const std::string& imei : options.imeis) {
    if (imei.size() != 15 || imei.find_first_not_of("0123456789") != std::string::npos) {
      throw std::invalid_argument("not an IMEI: " + imei + " (it has 15 digits)");
    }
  }
  for (const std::string& number : options.serialNumbers) {
    if (number.size() > kSerialNumberBytes) {
      throw std::invalid_argument("not a serial number: " + number + " (it has at most " +
                                  std::to_string(kSerialNumberBytes) + " characters)");
    }
  }
}

}  // namespace

Core::Core(HandsetOptions options)
    : options_(std::move(options)),
      noise_(options_.seed, 1'000'003),
      faults_(options_.seed),
      journal_(options_.journalCapacity),
      decoder_(
          options_.byteOrder, [this](Frame frame) { Hear(std::move(frame)); },
          [this](std::string_view reason, const Bytes& unescaped) {
            journal_.AddReject(std::string(reason) + ": " + ToHex(unescaped));
            Note("-> rejected, " + std::string(reason) + ": " + ToHex(unescaped));
          }),
      outbox_(
          io_, faults_, options_.timeScale,
          [this](Bytes bytes) { transport_->Write(std::move(bytes)); },
          [this] { CutConnection(); }) {
  Check(options_);
  for (const std::string& fault : options_.faults) faults_.Set(fault);
}

Core::~Core() { Stop(); }

void Core::SetUp() {
  started_ = Clock::now();
  flash_.Open(options_.stateFile, options_.blank);
  parts_ = MakeParts(*this);
  for (auto& part : parts_) {
    part->Register(registry_);
    if (flash_.NeedsFactoryData(part->Name())) part->WriteFactoryData(flash_);
  }
  flash_.Save();
  transport_ = MakeTransport(io_, options_,
                             {[this](std::span<const std::uint8_t> bytes) { decoder_.Feed(bytes); },
                              [this](bool connected) {
                                Note(connected ? "station connected" : "station gone");
                                decoder_.Reset();
                                if (!connected) outbox_.Clear();
                                Publish();
                              }});
  transport_->Appear();
  portPresent_ = true;
  address_ = transport_->Address();
  PowerUp(options_.startMode);
}

void Core::Start() {
  const std::lock_guard lock(lifecycle_);
  if (std::exchange(startedOnce_, true)) throw std::logic_error("a handset starts only once");
  SetUp();
  thread_ = std::thread([this] {
    ownThread_ = std::this_thread::get_id();
    const auto work = asio::make_work_guard(io_);
    io_.run();
  });
  running_ = true;
}

void Core::Stop() {
  const std::lock_guard lock(lifecycle_);
  if (!std::exchange(running_, false)) return;
  io_.stop();
  thread_.join();
  ownThread_ = std::thread::id();
  transport_.reset();
}

void Core::Invoke(const std::function<void()>& function, WhenStopped whenStopped) {
  if (ownThread_ == std::this_thread::get_id()) {
    function();
    return;
  }
  const std::lock_guard lock(lifecycle_);
  if (!running_) {
    if (whenStopped == WhenStopped::Throw) throw std::logic_error("not running");
    function();
    return;
  }
  std::promise<void> done;
  std::exception_ptr failure;
  asio::post(io_, [&] {
    try {
      function();
    } catch (...) {
      failure = std::current_exception();
    }
    // By now this thread has let go of the exception.
    done.set_value();
  });
  done.get_future().wait();
  if (failure) std::rethrow_exception(failure);
}

// --- power and modes

void Core::PowerUp(std::optional<std::uint8_t> mode) {
  ++boot_;
  mode_ = 0;
  SetPower(Power::Booting);
  for (auto& part : parts_) part->PowerOn();
  if (mode) EnterMode(*mode);
  SaveFlash();
}

void Core::EnterMode(std::uint8_t mode) {
  mode_ = mode;
  SetPower(Power::Running);
  for (auto& part : parts_) part->ModeEntered();
}

void Core::SetPower(Power power) {
  power_ = power;
  Publish();
}

void Core::Publish() {
  {
    const std::lock_guard lock(stateMutex_);
    state_ = {power_, mode_, portPresent_, transport_ && transport_->Connected()};
  }
  stateChanged_.notify_all();
}

HandsetState Core::State() const {
  const std::lock_guard lock(stateMutex_);
  return state_;
}

bool Core::WaitForState(const std::function<bool(const HandsetState&)>& predicate,
                        milliseconds timeout) const {
  std::unique_lock lock(stateMutex_);
  return stateChanged_.wait_for(lock, timeout, [&] { return predicate(state_); });
}

StatusMap Core::Status() const {
  static constexpr const char* kPowerNames[] = {"booting", "running", "asleep", "off"};
  StatusMap status;
  status["power"] = kPowerNames[static_cast<std::size_t>(power_)];
  status["mode"] = std::to_string(mode_);
  status["port"] = portPresent_ ? "present" : "away";
  status["station"] = transport_ && transport_->Connected() ? "connected" : "absent";
  status["faults"] = faults_.Describe();
  for (const auto& part : parts_) {
    StatusMap own;
    part->Describe(own);
    for (auto& [name, value] : own) status[part->Name() + "." + name] = std::move(value);
  }
  return status;
}

void Core::Restart(std::optional<std::uint8_t> mode, bool portVanishes) {
  ++boot_;
  SetPower(Power::Off);
  Note("restarts");
  RestartWhenDrained(mode, portVanishes, Clock::now() + kDrainLimit);
}

void Core::RestartWhenDrained(std::optional<std::uint8_t> mode, bool portVanishes,
                              Clock::time_point limit) {
  Later(kDrainPoll, [this, mode, portVanishes, limit, boot = boot_] {
    if (boot != boot_) return;
    const bool drained = outbox_.Empty() && transport_->Drained();
    if (!drained && Clock::now() < limit) return RestartWhenDrained(mode, portVanishes, limit);
    Later(kRestartDelay, [this, mode, portVanishes, boot] {
      if (boot != boot_) return;
      const auto powerUp = [this, mode, boot] {
        if (boot == boot_) PowerUp(mode);
      };
      if (!portVanishes) return powerUp();
      VanishPort({});
      AppearAfter(options_.portAbsence, powerUp);
    });
  });
}

// --- the port

void Core::VanishPort(std::optional<milliseconds> absence) {
  ++portChange_;
  Note("port vanishes");
  outbox_.Clear();
  decoder_.Reset();
  transport_->Vanish();
  portPresent_ = false;
  Publish();
  if (absence) AppearAfter(*absence, [] {});
}

void Core::AppearAfter(milliseconds delay, std::function<void()> then) {
  Later(Scaled(delay), [this, then = std::move(then), change = portChange_]() mutable {
    if (change != portChange_) return then();
    try {
      PlugPort();
    } catch (const std::runtime_error& error) {
      Note(error.what());
      return AppearAfter(kPortRetry, std::move(then));
    }
    then();
  });
}

void Core::PlugPort() {
  if (portPresent_) return;
  transport_->Appear();
  ++portChange_;
  portPresent_ = true;
  Note("port appears");
  Publish();
}

void Core::CutConnection() {
  outbox_.Clear();
  if (!transport_->CutConnection()) VanishPort(options_.portAbsence);
}

// --- what is heard

void Core::Hear(Frame frame) {
  if (options_.transcript) Note(Describe("->", frame));
  // Before its answer: who got that finds the frame here.
  journal_.Add(frame);
  if (std::optional<Reply> reply = ScriptedReply(frame)) {
    request_ = std::move(frame);
    Play(*reply);
  } else if (faults_.Strikes(FaultKind::Silent)) {
    Note("   not heard");
  } else if (power_ == Power::Asleep) {
    Note("   wakes up");
    SetPower(Power::Running);
  } else if (power_ == Power::Running ||
             (power_ == Power::Booting && registry_.AllowedWhileBooting(frame.type))) {
    Carry(frame);
  } else {
    Note("   ignored");
  }
}

void Core::Carry(const Frame& frame) {
  request_ = frame;
  if (faults_.Strikes(FaultKind::Refuse)) {
    Refuse(frame);
    return;
  }
  try {
    if (!registry_.Dispatch(frame) && options_.refuseUnknown) Refuse(frame);
  } catch (const std::out_of_range&) {
    // The command ended before its own fields did.
    Refuse(frame);
  }
  SaveFlash();
}

std::optional<Reply> Core::ScriptedReply(const Frame& frame) {
  Key key{frame.type, frame.subtype};
  if (auto queued = once_.find(key); queued != once_.end()) {
    ReplyMaker maker = std::move(queued->second.front());
    queued->second.pop_front();
    if (queued->second.empty()) once_.erase(queued);
    return maker(frame);
  }
  const auto standing = always_.find(key);
  return standing == always_.end() ? std::nullopt : standing->second(frame);
}

void Core::Script(std::uint8_t type, std::uint8_t subtype, ReplyMaker maker, bool once) {
  if (once) {
    once_[{type, subtype}].push_back(std::move(maker));
  } else {
    always_[{type, subtype}] = std::move(maker);
  }
}

void Core::ClearScripts() {
  once_.clear();
  always_.clear();
  editor_ = nullptr;
}

void Core::Play(const Reply& reply) {
  for (const Reply::Item& item : reply.Items()) {
    const auto* frame = std::get_if<Frame>(&item.content);
    if (options_.transcript && frame != nullptr) Note(Describe("<-", *frame) + " [scripted]");
    outbox_.SendRaw(frame != nullptr ? EncodeFrame(*frame, Order()) : std::get<Bytes>(item.content),
                    item.delay, item.pieceBytes, item.gap);
  }
}

// --- what is said

void Core::Answer(std::uint8_t type, std::uint8_t subtype, Bytes payload) {
  Frame answer{type, subtype, std::move(payload)};
  if (editor_) editor_(request_, answer);
  Send(answer, options_.latency, false);
}

void Core::Refuse(const Frame& request) {
  Answer(registry_.AnswerType(request.type), kRefusedSubtype, {});
}

void Core::Report(std::uint8_t type, std::uint8_t subtype, Bytes payload) {
  const bool heard = transport_->Connected() && transport_->Backlog() < kUnsolicitedBacklogLimit;
  const bool able = power_ == Power::Booting || power_ == Power::Running;
  if (!heard || !able || faults_.Always(FaultKind::Silent)) return;
  Send({type, subtype, std::move(payload)}, milliseconds::zero(), true);
}

void Core::Send(const Frame& frame, milliseconds delay, bool unsolicited) {
  const std::string fault = outbox_.SendFrame(EncodeFrame(frame, Order()), delay, unsolicited);
  if (options_.transcript) {
    Note(Describe("<-", frame) + (fault.empty() ? "" : " [" + fault + "]"));
  }
}

// --- time and notes

void Core::After(milliseconds delay, std::function<void()> task) {
  const Clock::duration scaled = std::max<Clock::duration>(Scaled(delay), kShortestTask);
  Later(scaled, [this, task = std::move(task), boot = boot_] {
    if (boot != boot_) return;
    task();
    SaveFlash();
  });
}

void Core::Later(Clock::duration delay, std::function<void()> task) {
  const auto timer = std::make_shared<asio::steady_timer>(io_, delay);
  timer->async_wait([timer, task = std::move(task)](const asio::error_code& error) {
    if (!error) task();
  });
}

Clock::duration Core::Scaled(milliseconds delay) const {
  return std::chrono::duration_cast<Clock::duration>(delay * options_.timeScale);
}

void Core::SaveFlash() {
  try {
    flash_.Save();
  } catch (const std::exception& error) {
    Note(error.what());
  }
}

void Core::Note(const std::string& line) {
  if (!options_.transcript) return;
  char stamp[32];
  std::snprintf(stamp, sizeof stamp, "%10.3f ",
                std::chrono::duration<double>(Clock::now() - started_).count());
  options_.transcript(stamp + line);
}

}  // namespace handset
