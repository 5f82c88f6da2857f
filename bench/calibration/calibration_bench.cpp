// Whole four-band calibrations of simulated handsets: where the time of one goes, and what many at
// once cost.
//   merovane-bench-calibration [handsets 32] [handset's answer time in ms 5]
#include <time.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <latch>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "handset/handset.h"

extern "C" {
#include "gsm_calibration.h"
}

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::int32_t kFirstPort = 200;
constexpr double kSleepBeforeReport = 0.2;  // in every receive measurement

double CpuSeconds(clockid_t clock) {
  timespec spent{};
  clock_gettime(clock, &spent);
  return static_cast<double>(spent.tv_sec) + 1e-9 * static_cast<double>(spent.tv_nsec);
}

// A handset with its station thread.
class Station {
 public:
  Station(std::int32_t port, std::chrono::milliseconds answerTime)
      : port_(port), phone_(Options(answerTime)) {
    phone_.Start();
    setenv(("CASSORIND_COM" + std::to_string(port)).c_str(), phone_.DevicePath().c_str(), 1);
    // Every exchange with the instrument tells the time that the handset has taken from this
    // machine.
    phone_.OnFrame(104, 0, [this](const handset::Frame&) -> std::optional<handset::Reply> {
      handsetCpu_ = CpuSeconds(CLOCK_THREAD_CPUTIME_ID);
      return std::nullopt;
    });
  }

  void Calibrate() {
    result_ = QV_BeginPhoneTest_MT(port_, 115200);
    if (result_ == PC_ERR_SUCCESS) result_ = calibrate_gsm(port_, &found_);
    stationCpu_ = CpuSeconds(CLOCK_THREAD_CPUTIME_ID);
    QV_EndPhoneTest_MT(port_);
  }

  std::int32_t Result() const { return result_; }
  const GSM_CALIBRATION& Found() const { return found_; }
  double StationCpu() const { return stationCpu_; }
  double HandsetCpu() const { return handsetCpu_; }
  std::size_t Exchanges() const { return phone_.Received().size(); }
  double RequiredSleep() const {
    const auto frames = phone_.Received();
    return kSleepBeforeReport *
           static_cast<double>(std::count_if(frames.begin(), frames.end(), [](const auto& frame) {
             return frame.type == 10 && frame.subtype == 0 && frame.payload[0] == 0xA1 &&
                    frame.payload[1] == 0x11;
           }));
  }

 private:
  static handset::HandsetOptions Options(std::chrono::milliseconds answerTime) {
    handset::HandsetOptions options;
    options.transport = handset::TransportKind::Tcp;
    options.startMode = 1;
    options.latency = answerTime;
    return options;
  }

  std::int32_t port_;
  GSM_CALIBRATION found_{};
  std::int32_t result_ = -1;
  double stationCpu_ = 0;
  std::atomic<double> handsetCpu_{0};
  handset::Handset phone_;
};

struct Round {
  std::vector<std::unique_ptr<Station>> stations;
  double wall = 0;
  double libraryCpu = 0;  // of every thread but the handsets' and those of before
};

Round Run(int count, std::chrono::milliseconds answerTime) {
  Round round;
  for (int i = 0; i < count; ++i) {
    round.stations.push_back(std::make_unique<Station>(kFirstPort + i, answerTime));
  }
  const double cpuBefore = CpuSeconds(CLOCK_PROCESS_CPUTIME_ID);
  const auto begin = Clock::now();
  {
    std::vector<std::jthread> threads;
    for (auto& station : round.stations) {
      threads.emplace_back([&station] { station->Calibrate(); });
    }
  }
  round.wall = std::chrono::duration<double>(Clock::now() - begin).count();
  round.libraryCpu = CpuSeconds(CLOCK_PROCESS_CPUTIME_ID) - cpuBefore;
  for (const auto& station : round.stations) round.libraryCpu -= station->HandsetCpu();
  return round;
}

bool Same(const GSM_CALIBRATION& one, const GSM_CALIBRATION& other) {
  bool same = one.centre_dac == other.centre_dac && one.hz_per_step == other.hz_per_step;
  for (int i = 0; i < CALIBRATION_BANDS; ++i) {
    const BAND_CALIBRATION &a = one.bands[i], &b = other.bands[i];
    same = same && std::ranges::equal(a.gain_words, b.gain_words) &&
           std::ranges::equal(a.compensation, b.compensation) &&
           std::ranges::equal(a.step_factors, b.step_factors);
  }
  return same;
}

}  // namespace

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::atoi(argv[1]) : 32;
  const std::chrono::milliseconds answerTime(argc > 2 ? std::atoi(argv[2]) : 5);
  if (count < 1 || answerTime.count() < 0) return 2;

  const Round one = Run(1, answerTime);
  const Station& station = *one.stations[0];
  if (station.Result() != PC_ERR_SUCCESS) {
    std::printf("one handset: result %d\n", static_cast<int>(station.Result()));
    return 1;
  }
  const double sleep = station.RequiredSleep();
  const double share = 100 / one.wall;
  std::printf("one handset, %d ms to an answer: %.2f s, %zu exchanges\n",
              static_cast<int>(answerTime.count()), one.wall, station.Exchanges());
  std::printf("  sleeps that commands require   %6.2f s  %5.1f %%\n", sleep, share * sleep);
  std::printf("  station thread on a processor  %6.2f s  %5.1f %%\n", station.StationCpu(),
              share * station.StationCpu());
  std::printf("  all of the station's threads   %6.2f s  %5.1f %%\n", one.libraryCpu,
              share * one.libraryCpu);
  std::printf("  handset and wire               %6.2f s  %5.1f %%\n",
              one.wall - sleep - one.libraryCpu, share * (one.wall - sleep - one.libraryCpu));
  std::printf("  handset's thread on a processor %5.2f s\n", station.HandsetCpu());

  const Round many = Run(count, answerTime);
  std::size_t different = 0;
  for (const auto& each : many.stations) {
    different += each->Result() != PC_ERR_SUCCESS || !Same(each->Found(), station.Found());
  }
  std::printf("%d handsets at once: %.2f s, ratio %.2f; stations' threads %.2f s; %zu differ\n",
              count, many.wall, many.wall / one.wall, many.libraryCpu, different);
  return different == 0 ? 0 : 1;
}
