#include "handset/handset.h"

#include <stdexcept>
#include <utility>

#include "handset/core.h"

namespace handset {
namespace {

constexpr std::uint8_t kAssertType = 0xFF;
constexpr std::uint8_t kLastAssertKind = 2;

ReplyMaker Always(Reply reply) {
  return [reply = std::move(reply)](const Frame&) { return reply; };
}

}  // namespace

Handset::Handset(HandsetOptions options) : core_(std::make_unique<Core>(std::move(options))) {}
Handset::~Handset() = default;

template <typename Function>
auto Handset::OnOwnThread(Function function) const {
  if constexpr (std::is_void_v<decltype(function())>) {
    core_->Invoke(function, Core::WhenStopped::Call);
  } else {
    decltype(function()) result{};
    core_->Invoke([&] { result = function(); }, Core::WhenStopped::Call);
    return result;
  }
}

template <typename Function>
void Handset::WhileRunning(Function function) const {
  core_->Invoke(function, Core::WhenStopped::Throw);
}

void Handset::Start() { core_->Start(); }
void Handset::Stop() { core_->Stop(); }

std::string Handset::DevicePath() const {
  const bool tcp = core_->Options().transport == TransportKind::Tcp;
  return (tcp ? "socket://" : "") + core_->Address();
}

std::string Handset::Address() const { return core_->Address(); }

HandsetState Handset::State() const {
  // After whatever the handset is doing at the moment.
  return OnOwnThread([&] { return core_->State(); });
}

bool Handset::WaitForState(const std::function<bool(const HandsetState&)>& predicate,
                           std::chrono::milliseconds timeout) const {
  return core_->WaitForState(predicate, timeout);
}

StatusMap Handset::Status() const {
  return OnOwnThread([&] { return core_->Status(); });
}

std::string Handset::Status(const std::string& name) const {
  const StatusMap status = Status();
  const auto found = status.find(name);
  return found == status.end() ? "" : found->second;
}

Bytes Handset::Stored(const std::string& name) const {
  return OnOwnThread([&] {
    const Bytes* item = core_->Flash().Find(name);
    return item != nullptr ? *item : Bytes();
  });
}

void Handset::Store(const std::string& name, Bytes bytes) {
  OnOwnThread([&] {
    core_->Flash().Put(name, std::move(bytes));
    core_->Flash().Save();
  });
}

std::optional<Frame> Handset::NextFrame(std::uint8_t type, std::uint8_t subtype,
                                        std::chrono::milliseconds timeout) {
  return core_->Heard().Next(type, subtype, timeout);
}

std::vector<Frame> Handset::Received() const { return core_->Heard().Frames(); }

std::size_t Handset::ReceivedCount(std::uint8_t type, std::uint8_t subtype) const {
  return core_->Heard().Count(type, subtype);
}

std::vector<std::string> Handset::Rejected() const { return core_->Heard().Rejects(); }
void Handset::ClearJournal() { core_->Heard().Clear(); }

void Handset::ExpectOnce(std::uint8_t type, std::uint8_t subtype, Reply reply) {
  ExpectOnce(type, subtype, Always(std::move(reply)));
}

void Handset::ExpectOnce(std::uint8_t type, std::uint8_t subtype, ReplyMaker maker) {
  OnOwnThread([&] { core_->Script(type, subtype, std::move(maker), true); });
}

void Handset::OnFrame(std::uint8_t type, std::uint8_t subtype, Reply reply) {
  OnFrame(type, subtype, Always(std::move(reply)));
}

void Handset::OnFrame(std::uint8_t type, std::uint8_t subtype, ReplyMaker maker) {
  OnOwnThread([&] { core_->Script(type, subtype, std::move(maker), false); });
}

void Handset::EditAnswers(AnswerEditor editor) {
  OnOwnThread([&] { core_->EditAnswers(std::move(editor)); });
}

void Handset::ClearScripts() {
  OnOwnThread([&] { core_->ClearScripts(); });
}

void Handset::SendFrame(std::uint8_t type, std::uint8_t subtype, Bytes payload) {
  WhileRunning([&] { core_->Play(Reply::Answer(type, subtype, std::move(payload))); });
}

void Handset::SendRaw(Bytes bytes, std::size_t pieceBytes, std::chrono::milliseconds gap) {
  WhileRunning([&] { core_->Play(Reply::Raw(std::move(bytes)).InPieces(pieceBytes, gap)); });
}

void Handset::SetFault(const std::string& text) {
  OnOwnThread([&] { core_->FaultRules().Set(text); });
}

void Handset::Assert(std::uint8_t kind) {
  if (kind > kLastAssertKind) throw std::invalid_argument("assert kinds are 0 to 2");
  WhileRunning([&] { core_->Report(kAssertType, kind, ToBytes("assert in layer1.c line 271")); });
}

void Handset::Restart() {
  WhileRunning([&] { core_->Restart(core_->Options().startMode, core_->Options().portVanishes); });
}

void Handset::VanishPort(std::chrono::milliseconds absence) {
  WhileRunning([&] { core_->VanishPort(absence); });
}

void Handset::UnplugPort() {
  WhileRunning([&] { core_->VanishPort({}); });
}

void Handset::PlugPort() {
  WhileRunning([&] { core_->PlugPort(); });
}

void Handset::Disconnect() {
  WhileRunning([&] { core_->CutConnection(); });
}

}  // namespace handset
