// A simulated handset:
//   Handset phone({.startMode = 1});
//   phone.Start();
//   setenv("CASSORIND_COM5", phone.DevicePath().c_str(), 1);
// Everything but Start and Stop may be called from any thread at any time, also from within a
// scripted answer. What needs a handset that is on (SendFrame, SendRaw, Assert, Restart and all
// that is done to the port) throws std::logic_error before Start and after Stop.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "firmware/firmware.h"
#include "firmware/options.h"
#include "wire/reply.h"
#include "wire/wire.h"

namespace handset {

class Core;

struct HandsetState {
  Power power = Power::Booting;
  std::uint8_t mode = 0;
  bool portPresent = false;
  bool stationConnected = false;
};

class Handset {
 public:
  // Throws std::invalid_argument when an option says nothing that a handset can be.
  explicit Handset(HandsetOptions options);
  Handset(const Handset&) = delete;
  Handset& operator=(const Handset&) = delete;
  ~Handset();

  // Switches the handset on, on a thread of its own; the port is there when this returns. Throws
  // std::runtime_error when it cannot be. A handset starts only once: std::logic_error afterwards.
  void Start();
  void Stop();

  // What a station opens: a device path, or "socket://host:port". Stays the same when the port
  // vanishes and comes back.
  std::string DevicePath() const;
  // The same as the program announces it: a device path, or "host:port".
  std::string Address() const;

  // --- looking at it
  HandsetState State() const;
  // Waits until the predicate holds; false when the time is up.
  bool WaitForState(const std::function<bool(const HandsetState&)>& predicate,
                    std::chrono::milliseconds timeout) const;
  // Everything that it shows or knows of itself: "session.mode" to "2".
  StatusMap Status() const;
  std::string Status(const std::string& name) const;
  // An item of its flash memory, empty when never written; and one put there from outside.
  Bytes Stored(const std::string& name) const;
  void Store(const std::string& name, Bytes bytes);

  // --- what it heard
  // The next frame of that kind, waiting for it; frames before it are passed over.
  std::optional<Frame> NextFrame(std::uint8_t type, std::uint8_t subtype,
                                 std::chrono::milliseconds timeout = std::chrono::seconds(10));
  std::vector<Frame> Received() const;
  std::size_t ReceivedCount(std::uint8_t type, std::uint8_t subtype) const;
  // Why bytes between flags were no frame.
  std::vector<std::string> Rejected() const;
  void ClearJournal();

  // --- putting words in its mouth
  // For the next such frame only; several queue up.
  void ExpectOnce(std::uint8_t type, std::uint8_t subtype, Reply reply);
  void ExpectOnce(std::uint8_t type, std::uint8_t subtype, ReplyMaker maker);
  // For every such frame; the maker runs on the handset's thread.
  void OnFrame(std::uint8_t type, std::uint8_t subtype, Reply reply);
  void OnFrame(std::uint8_t type, std::uint8_t subtype, ReplyMaker maker);
  // Changes each answer before it leaves, to cut it short for instance.
  using AnswerEditor = std::function<void(const Frame& request, Frame& answer)>;
  void EditAnswers(AnswerEditor editor);
  void ClearScripts();
  // Unasked, and untouched by faults.
  void SendFrame(std::uint8_t type, std::uint8_t subtype, Bytes payload = {});
  void SendRaw(Bytes bytes, std::size_t pieceBytes = 0, std::chrono::milliseconds gap = {});

  // --- making it misbehave
  // "drop=0.1", "split=next:2,pieces:4,gap:10", "none"; see README.md. Throws
  // std::invalid_argument.
  void SetFault(const std::string& text);
  // Reports an assert (kind 0 to 2).
  void Assert(std::uint8_t kind);
  // Off and on again, as the restart command does it; the port does what the options say.
  void Restart();
  // The port goes away, and comes back after that time.
  void VanishPort(std::chrono::milliseconds absence);
  // The port goes away, or comes back, until told otherwise.
  void UnplugPort();
  void PlugPort();
  void Disconnect();

 private:
  template <typename Function>
  auto OnOwnThread(Function function) const;
  template <typename Function>
  void WhileRunning(Function function) const;

  std::unique_ptr<Core> core_;
};

}  // namespace handset
