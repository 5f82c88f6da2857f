// One request and its answer through the link, beside a bare write, poll and read of the same bytes
// on a channel of the same kind; all threads on one core. "above_us" is the difference,
// "times_bare" the ratio.
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

#include "far_end.h"
#include "interleaved.h"
#include "link/phone_link.h"
#include "support/temp_directory.h"

namespace {

using bench::ChannelKind;
using merovane::Result;

constexpr std::int32_t kPort = 5;
constexpr int kRounds = 50;

std::vector<std::uint8_t> Frame(std::size_t wireBytes) {
  const std::vector<std::uint8_t> payload(wireBytes - 10, 0x41);
  std::vector<std::uint8_t> raw(payload.size() + 8);
  merovane::BuildHeader({9, 1}, 0, merovane::ByteOrder::Big(), payload, raw);
  std::vector<std::uint8_t> encoded(merovane::MaxEncodedBytes(raw.size()));
  encoded.resize(merovane::EncodeFrame(raw, encoded));
  if (encoded.size() != wireBytes) throw std::logic_error("the frame was to have no escapes");
  return encoded;
}

struct How {
  ChannelKind kind;
  bool logs = false;
  bool receiveThread = false;
  std::size_t answerBytes = 32;
};

void Exchange(benchmark::State& state, How how) {
  bench::PinToOneCore();
  const std::vector<std::uint8_t> request = Frame(32);
  const std::vector<std::uint8_t> answer = Frame(how.answerBytes);
  bench::FarEnd linkEnd(how.kind, request.size(), answer);
  bench::FarEnd bareEnd(how.kind, request.size(), answer);
  ::setenv("CASSORIND_COM5", linkEnd.DeviceName().c_str(), 1);

  const merovane::test::TempDirectory directory;
  merovane::LinkEnvironment environment(directory.Path());
  merovane::LinkSettings& settings = environment.settings;
  settings.usefulLog = settings.allLog = how.logs;
  settings.receiveMode = how.receiveThread ? 1 : 0;
  merovane::PhoneLink link(environment);
  if (link.Open(kPort, 115200) != Result::Success) throw std::runtime_error("cannot open");
  const int bare = bareEnd.OpenBare();

  const std::vector<std::uint8_t> payload(22, 0x41);
  const auto exchange = [&] {
    if (link.SendAndWaitSame({9, 1}, payload, 10'000).Payload().size() != answer.size() - 10) {
      throw std::runtime_error("no answer");
    }
  };
  const bench::Times times = bench::MeasureInTurns(
      state, kRounds, exchange, [&] { bench::ExchangeBare(bare, request, answer.size()); });
  state.counters["bare_us"] = times.other * 1e6;
  state.counters["link_us"] = times.own * 1e6;
  state.counters["above_us"] = (times.own - times.other) * 1e6;
  state.counters["times_bare"] = times.own / times.other;
  ::close(bare);
  static_cast<void>(link.Close());
  if (how.logs) std::filesystem::remove_all(merovane::platform::ExecutableDirectory() / "Log");
}

#define EXCHANGE(name, ...)                           \
  BENCHMARK_CAPTURE(Exchange, name, How{__VA_ARGS__}) \
      ->UseManualTime()                               \
      ->Unit(benchmark::kMicrosecond)                 \
      ->Iterations(150)

EXCHANGE(pty, ChannelKind::Pty);
EXCHANGE(tcp, ChannelKind::Tcp);
EXCHANGE(pty_logs, ChannelKind::Pty, true);
EXCHANGE(tcp_logs, ChannelKind::Tcp, true);
EXCHANGE(pty_thread, ChannelKind::Pty, false, true);
EXCHANGE(tcp_thread, ChannelKind::Tcp, false, true);
EXCHANGE(tcp_9000, ChannelKind::Tcp, false, false, 9000);

}  // namespace
