// Calls everything that the library exports in every way that its declaration tells apart, against
// handsets of every bad manner, and notes what does not keep to the declaration.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "sweep/call.h"
#include "sweep/far_end.h"

namespace merovane::sweep {

struct Plan {
  // Ports, each with a handset and a thread of its own.
  int ports = 64;
  // Against handsets that do not answer: exports that wait longer are left out.
  std::uint32_t longestWaitMs = 60'000;
  // Lengths of random answers: every one up to 300 and 9,000, or some of them.
  bool everyLength = true;
  // Ports receive in threads of their own.
  bool receiveThread = false;
  // Only exports whose names contain it.
  std::string only;
};

class Sweep {
 public:
  Sweep(std::vector<Export> surface, Plan plan);

  void Run();

  std::uint64_t Calls() const { return calls_; }
  std::uint64_t Answered() const { return answered_; }
  const std::vector<std::string>& Findings() const { return findings_; }

 private:
  using Chosen = std::vector<const Export*>;
  struct Station;
  // What is done with one export at one station.
  using Work = std::function<void(const Export&, Station&)>;

  Chosen Those(const std::function<bool(const Export&)>& which) const;
  void WithoutSession();
  void AgainstHandsets();
  void OnDefaultPort();
  void WithProject();
  void SessionFunctions();
  void Share(const Chosen& exports, std::vector<Station>& stations, const Work& work);
  void Vary(const Export& which, Station& station, bool open);
  // `open`: there is a session; `waits`: time limits are put to the test.
  void Try(const Export& which, Station& station, const std::optional<Variation>& variation,
           bool open, bool waits);
  void AnswerAtLengths(const Export& which, Station& station);
  void Find(const Call& call, const std::string& what);

  const std::vector<Export> surface_;
  const Plan plan_;
  std::atomic<std::uint64_t> calls_{0};
  std::uint64_t answered_ = 0;
  std::mutex mutex_;
  std::vector<std::string> findings_;
};

}  // namespace merovane::sweep
