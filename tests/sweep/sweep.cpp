#include "sweep/sweep.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <thread>

#include "support/temp_directory.h"

namespace merovane::sweep {
namespace {

constexpr std::int32_t kFirstPort = 100;
constexpr std::int32_t kBaudRate = 115200;
// What a call may be late.
constexpr double kLateMs = 50;
// A machine under load delays a call now and then, the library would do so each time.
constexpr int kTimings = 4;
// Time limits among arguments: what is tested for lateness gets one that is longer than that.
constexpr std::uint32_t kWaitMs = 100;
constexpr std::uint32_t kShortWaitMs = 5;
// Above this an answer of random bytes did not end the wait, and the other lengths are sampled.
constexpr double kSlowMs = 80;

const std::vector<std::size_t> kSomeLengths{0, 1, 2, 3, 4, 7, 8, 16, 24, 64, 255, 300, 9000};

bool Begins(const Export& which) { return which.name.starts_with("QV_BeginPhoneTest"); }

// For functions that take none.
constexpr std::int32_t kNoPort = 0;

}  // namespace

struct Sweep::Station {
  std::int32_t port = kNoPort;
  Memory memory;
  std::unique_ptr<FarEnd> farEnd;
};

Sweep::Sweep(std::vector<Export> surface, Plan plan)
    : surface_(std::move(surface)), plan_(std::move(plan)) {}

void Sweep::Run() {
  QV_SetRecvMode(plan_.receiveThread ? QV_RECEIVE_MODE_THREAD : QV_RECEIVE_MODE_CALLER);
  WithoutSession();
  AgainstHandsets();
  OnDefaultPort();
  WithProject();
  SessionFunctions();
}

Sweep::Chosen Sweep::Those(const std::function<bool(const Export&)>& which) const {
  Chosen chosen;
  for (const Export& each : surface_) {
    const bool asked = each.name.find(plan_.only) != std::string_view::npos;
    if (asked && which(each)) chosen.push_back(&each);
  }
  return chosen;
}

void Sweep::WithoutSession() {
  std::vector<Station> stations(4);
  for (Station& station : stations) station.port = kFirstPort - 1;
  const auto which = [](const Export& each) { return each.kind != Export::Kind::Session; };
  Share(Those(which), stations,
        [this](const Export& each, Station& station) { Vary(each, station, false); });
  // Ports that cannot be.
  Share(Those([](const Export& each) { return each.takesPort && !Begins(each); }), stations,
        [this](const Export& each, Station& station) {
          const std::int32_t usual = station.port;
          for (const std::int32_t port : {0, -1, 250, INT32_MAX, INT32_MIN}) {
            station.port = port;
            Try(each, station, std::nullopt, false, false);
          }
          station.port = usual;
        });
}

void Sweep::AgainstHandsets() {
  std::vector<Station> stations(static_cast<std::size_t>(plan_.ports));
  std::int32_t port = kFirstPort;
  for (Station& station : stations) {
    station.port = port++;
    station.farEnd = std::make_unique<FarEnd>(station.port);
    if (QV_BeginPhoneTest_MT(station.port, kBaudRate) != 0) {
      throw std::runtime_error("no session with the simulated handset");
    }
  }
  const auto behave = [&](Manner manner) {
    for (Station& station : stations) station.farEnd->Behave(manner);
  };
  const auto ofPort = [](const Export& each) {
    return each.takesPort && each.kind != Export::Kind::Session;
  };
  Share(Those(ofPort), stations,
        [this](const Export& each, Station& station) { Vary(each, station, true); });

  const auto asks = [](const Export& each) {
    return each.takesPort && each.reachesHandset && each.kind == Export::Kind::Command;
  };
  const auto inTime = [&](const Export& each) {
    return asks(each) && each.limitMs <= plan_.longestWaitMs;
  };
  behave(Manner::Answers);
  Share(Those(inTime), stations,
        [this](const Export& each, Station& station) { AnswerAtLengths(each, station); });

  // The longest first, so that none is waited for alone.
  Chosen waiting = Those(inTime);
  std::ranges::stable_sort(waiting, std::ranges::greater{}, &Export::limitMs);
  for (const Manner manner : {Manner::Silent, Manner::Floods, Manner::StopsInFrame}) {
    behave(manner);
    Share(waiting, stations, [this](const Export& each, Station& station) {
      Try(each, station, std::nullopt, true, true);
    });
  }
  behave(Manner::Refuses);
  for (Station& station : stations) {
    if (QV_EndPhoneTest_MT(station.port) != 0) findings_.emplace_back("a port did not end");
    answered_ += station.farEnd->Answered();
  }
}

void Sweep::OnDefaultPort() {
  std::vector<Station> stations(1);
  FarEnd handset(kFirstPort);
  if (QV_BeginPhoneTest(kFirstPort, kBaudRate) != 0) {
    throw std::runtime_error("no session with the simulated handset");
  }
  const auto plain = [](const Export& each) {
    return !each.takesPort && each.kind != Export::Kind::Session;
  };
  Share(Those(plain), stations,
        [this](const Export& each, Station& station) { Vary(each, station, true); });
  handset.Behave(Manner::Answers);
  const auto inTime = [&](const Export& each) {
    return plain(each) && each.reachesHandset && each.limitMs <= plan_.longestWaitMs;
  };
  for (const std::size_t length : {0U, 24U, 9000U}) {
    handset.AnswerWith(length);
    Share(Those(inTime), stations, [this](const Export& each, Station& station) {
      Try(each, station, std::nullopt, true, true);
    });
  }
  QV_EndPhoneTest();
}

// What is looked for by name has the name of the plainest text.
void Sweep::WithProject() {
  const test::TempDirectory folder;
  folder.Write("project", "TARGET = nv.bin\nMODULE = module\n");
  folder.Write("module",
               "MODULE = module\nBEGIN_ITEM\nITEM_NAME = 1\nITEM_ID = 1\nITEM_TYPE = SHORT\n"
               "ITEM_LENGTH = 2\nITEM_CONTENT = 0x5\nITEM_PARENT = -1\nITEM_INDEX = 0\nEND_ITEM\n");
  std::vector<Station> stations(1);
  stations.front().port = kFirstPort;
  const FarEnd handset(kFirstPort);
  if (QV_BeginPhoneTest(kFirstPort, kBaudRate) != 0 ||
      QV_OpenPrjFile((folder / "project").string().c_str()) != 0) {
    throw std::runtime_error("no project");
  }
  const auto which = [](const Export& each) {
    const bool holds = each.name.find("PrjFile") != std::string_view::npos;
    return each.kind == Export::Kind::Project && !holds;
  };
  Share(Those(which), stations,
        [this](const Export& each, Station& station) { Vary(each, station, true); });
  QV_EndPhoneTest();
}

// One after the other, since they change what all share; those that begin last.
void Sweep::SessionFunctions() {
  std::vector<Station> stations(1);
  stations.front().port = kFirstPort - 1;
  SetEnvironment(("CASSORIND_COM" + std::to_string(stations.front().port)).c_str(), "no device");
  for (const bool begins : {false, true}) {
    const auto which = [&](const Export& each) {
      return each.kind == Export::Kind::Session && Begins(each) == begins &&
             (!begins || each.takesPort);
    };
    Share(Those(which), stations, [this](const Export& each, Station& station) {
      for (const auto& variation : VariationsOf(each)) {
        Try(each, station, variation, false, true);
      }
    });
  }
}

void Sweep::Share(const Chosen& exports, std::vector<Station>& stations, const Work& work) {
  std::atomic<std::size_t> next = 0;
  std::vector<std::jthread> threads;
  threads.reserve(stations.size());
  for (Station& station : stations) {
    threads.emplace_back([&] {
      for (std::size_t at = next++; at < exports.size(); at = next++) work(*exports[at], station);
    });
  }
}

void Sweep::Vary(const Export& which, Station& station, bool open) {
  for (const auto& variation : VariationsOf(which)) Try(which, station, variation, open, false);
}

void Sweep::AnswerAtLengths(const Export& which, Station& station) {
  std::vector<std::size_t> lengths(301);
  std::iota(lengths.begin(), lengths.end(), std::size_t{0});
  lengths.push_back(kSomeLengths.back());
  bool sampled = !plan_.everyLength;
  for (const std::size_t length : lengths) {
    if (sampled && !std::ranges::binary_search(kSomeLengths, length)) continue;
    station.farEnd->AnswerWith(length);
    const auto start = std::chrono::steady_clock::now();
    Try(which, station, std::nullopt, true, true);
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    sampled = sampled || took.count() > kSlowMs;
    // It waits for more than an answer.
    if (took.count() > plan_.longestWaitMs) return;
  }
}

void Sweep::Try(const Export& which, Station& station, const std::optional<Variation>& variation,
                bool open, bool waits) {
  for (int timing = 1;; ++timing) {
    Call call(which, station.port, variation, waits ? kWaitMs : kShortWaitMs, station.memory);
    if (!call.CanBeMade()) return;
    ++calls_;
    const Call::Outcome outcome = call.Make();
    if (outcome.stackMoved) Find(call, "moved the stack pointer");
    if (!outcome.changed.empty()) Find(call, "wrote to " + std::string(outcome.changed));
    if (!which.results.empty()) {
      const auto result = static_cast<std::int32_t>(outcome.result);
      if (!std::ranges::binary_search(which.results, result)) {
        Find(call, "gave " + std::to_string(result) + ", which its declaration does not name");
      }
      const bool unchecked =
          which.kind == Export::Kind::Project && result == PC_ERR_NV_PRJ_FILE_IS_NOT_OPEN;
      if (open && call.MustBeRefused() && result != PC_ERR_INVALID_PARAM && !unchecked) {
        Find(call, "gave " + std::to_string(result) + " for what it does not take");
      }
    }
    const std::uint32_t limit = open || waits ? (which.limitMs + call.LimitMs()) * which.rounds : 0;
    if (outcome.milliseconds <= limit + kLateMs) return;
    if (timing < kTimings) continue;
    Find(call,
         "took " + std::to_string(outcome.milliseconds) + " ms, limit " + std::to_string(limit));
    return;
  }
}

void Sweep::Find(const Call& call, const std::string& what) {
  const std::scoped_lock lock(mutex_);
  findings_.push_back(call.Text() + ": " + what);
  std::cout << findings_.back() << '\n' << std::flush;
}

}  // namespace merovane::sweep
