// What an open port takes, and what 10,000 opens and closes leave behind.
#include <stdlib.h>

#include <filesystem>
#include <stdexcept>

#include "counted_heap.h"
#include "far_end.h"
#include "interleaved.h"
#include "link/phone_link.h"
#include "support/temp_directory.h"

namespace {

using bench::ChannelKind;

std::int64_t EntriesOf(const char* directory) {
  return std::distance(std::filesystem::directory_iterator(directory), {});
}

void OpenAndClose(benchmark::State& state, ChannelKind kind, std::uint32_t receiveMode) {
  bench::FarEnd farEnd(kind, 32, {0x7E});
  ::setenv("CASSORIND_COM5", farEnd.DeviceName().c_str(), 1);
  const merovane::test::TempDirectory directory;
  merovane::LinkEnvironment environment(directory.Path());
  environment.settings.receiveMode = receiveMode;
  const auto open = [&] {
    auto link = std::make_unique<merovane::PhoneLink>(environment);
    if (link->Open(5, 115200) != merovane::Result::Success) throw std::runtime_error("cannot open");
    return link;
  };
  open();

  const std::int64_t heap = bench::HeapBytes();
  const std::int64_t descriptors = EntriesOf("/proc/self/fd");
  const std::int64_t threads = EntriesOf("/proc/self/task");
  const auto held = open();
  state.counters["open_port_KiB"] = static_cast<double>(bench::HeapBytes() - heap) / 1024;
  static_cast<void>(held->Close());
  const std::int64_t closed = bench::HeapBytes();
  for ([[maybe_unused]] auto each : state) open();
  state.counters["heap_growth"] = static_cast<double>(bench::HeapBytes() - closed);
  // One socket that the far end still has to notice the end of.
  state.counters["descriptor_growth"] =
      static_cast<double>(EntriesOf("/proc/self/fd") - descriptors);
  state.counters["thread_growth"] = static_cast<double>(EntriesOf("/proc/self/task") - threads);
}

BENCHMARK_CAPTURE(OpenAndClose, pty, ChannelKind::Pty, 0)->Iterations(10'000);
BENCHMARK_CAPTURE(OpenAndClose, tcp, ChannelKind::Tcp, 0)->Iterations(10'000);
BENCHMARK_CAPTURE(OpenAndClose, pty_thread, ChannelKind::Pty, 1)->Iterations(10'000);

}  // namespace
