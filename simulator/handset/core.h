// Joins the port, the parts, the faults and the scripts; everything runs on one thread.
#pragma once

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/steady_timer.hpp>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "firmware/firmware.h"
#include "handset/faults.h"
#include "handset/handset.h"
#include "handset/outbox.h"
#include "transport/transport.h"
#include "wire/journal.h"
#include "wire/reply.h"

namespace handset {

class Core final : public Firmware {
 public:
  // Throws std::invalid_argument when an option says nothing that a handset can be.
  explicit Core(HandsetOptions options);
  ~Core();

  void Start();
  void Stop();
  // On the handset's thread, waiting for it; directly when that is the caller. A handset that
  // does not run calls it directly too, or throws std::logic_error.
  enum class WhenStopped { Call, Throw };
  void Invoke(const std::function<void()>& function, WhenStopped whenStopped);

  const std::string& Address() const { return address_; }
  HandsetState State() const;
  bool WaitForState(const std::function<bool(const HandsetState&)>& predicate,
                    milliseconds timeout) const;
  StatusMap Status() const;
  Journal& Heard() { return journal_; }
  Faults& FaultRules() { return faults_; }

  void Script(std::uint8_t type, std::uint8_t subtype, ReplyMaker maker, bool once);
  void EditAnswers(Handset::AnswerEditor editor) { editor_ = std::move(editor); }
  void ClearScripts();
  void Play(const Reply& reply);
  void VanishPort(std::optional<milliseconds> absence);
  void PlugPort();
  void CutConnection();

  // Firmware
  const HandsetOptions& Options() const override { return options_; }
  Storage& Flash() override { return flash_; }
  Random& Noise() override { return noise_; }
  using Firmware::Answer;
  void Answer(std::uint8_t type, std::uint8_t subtype, Bytes payload) override;
  void Refuse(const Frame& request) override;
  void Report(std::uint8_t type, std::uint8_t subtype, Bytes payload) override;
  void After(milliseconds delay, std::function<void()> task) override;
  Power PowerState() const override { return power_; }
  std::uint8_t Mode() const override { return mode_; }
  void EnterMode(std::uint8_t mode) override;
  void Sleep() override { SetPower(Power::Asleep); }
  void Restart(std::optional<std::uint8_t> mode, bool portVanishes) override;
  void Note(const std::string& line) override;

 private:
  using Key = std::pair<std::uint8_t, std::uint8_t>;

  void SetUp();
  void PowerUp(std::optional<std::uint8_t> mode);
  void SetPower(Power power);
  void Publish();
  void Hear(Frame frame);
  void Carry(const Frame& frame);
  std::optional<Reply> ScriptedReply(const Frame& frame);
  void Send(const Frame& frame, milliseconds delay, bool unsolicited);
  void SaveFlash();
  void RestartWhenDrained(std::optional<std::uint8_t> mode, bool portVanishes,
                          std::chrono::steady_clock::time_point limit);
  void AppearAfter(milliseconds delay, std::function<void()> then);
  // A timer of the port's or the restart's own: After's tasks end with a restart.
  void Later(std::chrono::steady_clock::duration delay, std::function<void()> task);
  std::chrono::steady_clock::duration Scaled(milliseconds delay) const;

  asio::io_context io_;
  HandsetOptions options_;
  Storage flash_;
  Random noise_;
  Faults faults_;
  Journal journal_;
  Registry registry_;
  std::vector<std::unique_ptr<Part>> parts_;
  std::unique_ptr<Transport> transport_;
  FrameDecoder decoder_;
  Outbox outbox_;
  std::string address_;
  std::chrono::steady_clock::time_point started_;

  std::map<Key, std::deque<ReplyMaker>> once_;
  std::map<Key, ReplyMaker> always_;
  Handset::AnswerEditor editor_;
  Frame request_;  // the last one carried out

  Power power_ = Power::Off;
  std::uint8_t mode_ = 0;
  bool portPresent_ = false;
  unsigned boot_ = 0;        // counts power-ups and -downs: a task of an earlier one is void
  unsigned portChange_ = 0;  // the same for the port's coming and going

  mutable std::mutex stateMutex_;
  mutable std::condition_variable stateChanged_;
  HandsetState state_;

  std::mutex lifecycle_;
  bool startedOnce_ = false;
  bool running_ = false;
  std::atomic<std::thread::id> ownThread_{};
  std::thread thread_;
};

}  // namespace handset
