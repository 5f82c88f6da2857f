// The frame codec beside a loop that handles one byte at a time. "times_loop" is how many times as
// fast as that loop.
#include <cstring>
#include <stdexcept>

#include "counted_heap.h"
#include "interleaved.h"
#include "link/frame_codec.h"
#include "link/frame_search.h"
#include "support/byte_by_byte.h"

namespace {

using merovane::test::Bytes;

constexpr std::int64_t kAllFlags = 1;
constexpr std::int64_t kOneInFourFlags = 4;

Bytes Payload(std::size_t size, std::int64_t kind) {
  std::mt19937 random(12345);
  if (kind == kAllFlags) return Bytes(size, 0x7E);
  Bytes bytes = merovane::test::RandomBytes(random, size);
  if (kind == kOneInFourFlags) {
    for (std::uint8_t& byte : bytes) {
      if (random() % 4 == 0) byte = 0x7E;
    }
  }
  return bytes;
}

void Report(benchmark::State& state, std::size_t bytes, const bench::Times& times,
            std::uint64_t allocationsBefore, std::uint64_t ownCalls) {
  state.counters["times_loop"] = times.other / times.own;
  state.counters["loop_ns"] = times.other * 1e9;
  state.counters["MB/s"] = static_cast<double>(bytes) / times.own / 1e6;
  // The two vectors of each measurement grow a few dozen times at most.
  state.counters["allocations_per_call"] =
      static_cast<double>(bench::Allocations() - allocationsBefore) / static_cast<double>(ownCalls);
}

int RoundsFor(std::size_t bytes) { return static_cast<int>(200'000 / bytes) + 1; }

void Encode(benchmark::State& state) {
  const Bytes raw = Payload(static_cast<std::size_t>(state.range(0)), state.range(1));
  Bytes own(merovane::MaxEncodedBytes(raw.size()));
  Bytes other(own.size());
  if (merovane::EncodeFrame(raw, own) != merovane::test::EncodeByteByByte(raw, other.data()) ||
      own != other) {
    throw std::logic_error("the two encoders differ");
  }
  const int rounds = RoundsFor(raw.size());
  const std::uint64_t before = bench::Allocations();
  const bench::Times times = bench::MeasureInTurns(
      state, rounds,
      [&] {
        benchmark::DoNotOptimize(merovane::EncodeFrame(raw, own));
        benchmark::ClobberMemory();
      },
      [&] {
        benchmark::DoNotOptimize(merovane::test::EncodeByteByByte(raw, other.data()));
        benchmark::ClobberMemory();
      });
  Report(state, raw.size(), times, before,
         static_cast<std::uint64_t>(state.iterations()) * static_cast<std::uint64_t>(rounds));
}

void Decode(benchmark::State& state) {
  const Bytes raw = Payload(static_cast<std::size_t>(state.range(0)), state.range(1));
  Bytes frame(merovane::MaxEncodedBytes(raw.size()));
  frame.resize(merovane::EncodeFrame(raw, frame));
  Bytes own(frame.size());
  Bytes other(frame.size());
  const int rounds = RoundsFor(raw.size());
  const std::uint64_t before = bench::Allocations();
  const bench::Times times = bench::MeasureInTurns(
      state, rounds,
      [&] {
        benchmark::DoNotOptimize(merovane::DecodeFrame(frame, own));
        benchmark::ClobberMemory();
      },
      [&] {
        benchmark::DoNotOptimize(merovane::test::DecodeByteByByte(frame, other.data()));
        benchmark::ClobberMemory();
      });
  Report(state, raw.size(), times, before,
         static_cast<std::uint64_t>(state.iterations()) * static_cast<std::uint64_t>(rounds));
}

// A frame that arrives 64 bytes at a time, beside a walk from the ring's start at each.
void ExtractInPieces(benchmark::State& state) {
  const Bytes raw = Payload(static_cast<std::size_t>(state.range(0)), 0);
  Bytes frame(merovane::MaxEncodedBytes(raw.size()));
  frame.resize(merovane::EncodeFrame(raw, frame));
  merovane::ByteRing ring;
  merovane::FrameSearch search(ring);
  std::array<std::uint8_t, merovane::kMaxFrameBytes> output;
  const auto copy = [&](std::span<const std::uint8_t> found) {
    std::memcpy(output.data(), found.data(), found.size());
  };
  merovane::test::WalkedRing walked;
  const auto pieces = [&](auto&& append, auto&& extract) {
    for (std::size_t at = 0; at < frame.size(); at += 64) {
      append(std::span<const std::uint8_t>(frame).subspan(
          at, std::min<std::size_t>(64, frame.size() - at)));
      extract();
    }
  };
  const std::uint64_t before = bench::Allocations();
  std::uint64_t ownAllocations = 0;
  const bench::Times times = bench::MeasureInTurns(
      state, 1,
      [&] {
        const std::uint64_t start = bench::Allocations();
        pieces([&](auto piece) { ring.Append(piece); },
               [&] { benchmark::DoNotOptimize(search.Extract(copy)); });
        ownAllocations += bench::Allocations() - start;
      },
      [&] {
        bool flagSeen = false;
        pieces([&](auto piece) { walked.Append(piece); },
               [&] { benchmark::DoNotOptimize(walked.Extract(flagSeen)); });
      });
  Report(state, raw.size(), times, before, static_cast<std::uint64_t>(state.iterations()));
  state.counters["allocations_per_call"] = static_cast<double>(ownAllocations);
}

void Sizes(benchmark::internal::Benchmark* each) {
  each->ArgNames({"bytes", "kind"})->UseManualTime()->Iterations(200);
  for (const std::int64_t bytes : {256, 1024, 9000}) {
    for (const std::int64_t kind : {std::int64_t{0}, kAllFlags, kOneInFourFlags}) {
      each->Args({bytes, kind});
    }
  }
}

BENCHMARK(Encode)->Apply(Sizes);
BENCHMARK(Decode)->Apply(Sizes);
BENCHMARK(ExtractInPieces)->ArgName("bytes")->Arg(9000 / 2)->UseManualTime()->Iterations(100);

}  // namespace
