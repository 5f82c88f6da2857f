// NV projects: lookups against a linear scan, loading against reading lines, and images.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <string>

#include "declared/nv_project.h"
#include "nvproject/live_bytes.h"
#include "nvproject/ratio_reporter.h"
#include "project-generator/project_generator.h"

namespace merovane {
namespace {

using nvproject::CFileParser;
using nvproject::Item;

// The bytes of an item record with fixed-size texts.
constexpr std::size_t kFixedRecordBytes = 8 * 4 + 64 + 256 + 256 + 512;

class Fixture {
 public:
  explicit Fixture(std::size_t items)
      : directory_(std::filesystem::temp_directory_path() /
                   ("merovane-bench-" + std::to_string(items))) {
    projectgen::Options options;
    options.items = items;
    generated_ = projectgen::Generate(options);
    projectFile_ = projectgen::Write(generated_, directory_).string();
    parser_ = Load();
    for (const auto& item : generated_.items) paths_.push_back(item.path);
    // A station asks for some hundred values again and again; these stand anywhere.
    std::shuffle(paths_.begin(), paths_.end(), std::mt19937(7));
    itemCount_ = paths_.size();
    paths_.resize(1000);
  }
  ~Fixture() {
    std::error_code ignored;
    std::filesystem::remove_all(directory_, ignored);
  }

  static Fixture& Of(std::int64_t items) {
    static std::map<std::int64_t, std::unique_ptr<Fixture>> fixtures;
    auto& fixture = fixtures[items];
    if (!fixture) fixture = std::make_unique<Fixture>(static_cast<std::size_t>(items));
    return *fixture;
  }

  std::unique_ptr<CFileParser> Load() const {
    auto parser = std::make_unique<CFileParser>();
    if (!parser->LoadProject(projectFile_)) std::abort();
    return parser;
  }
  CFileParser& Parser() { return *parser_; }
  std::size_t ItemCount() const { return itemCount_; }
  const std::vector<std::string>& Paths() const { return paths_; }
  std::vector<std::filesystem::path> Files() const {
    std::vector<std::filesystem::path> files;
    for (const auto& file : generated_.files) files.push_back(directory_ / file.name);
    return files;
  }

 private:
  std::filesystem::path directory_;
  projectgen::Project generated_;
  std::string projectFile_;
  std::unique_ptr<CFileParser> parser_;
  std::size_t itemCount_ = 0;
  std::vector<std::string> paths_;
};

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool SameButCase(std::string_view a, std::string_view b) {
  for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
    if (Lower(a[i]) != Lower(b[i])) return false;
  }
  return a.size() == b.size();
}

const Item* Scan(const CFileParser& parser, std::string_view path) {
  const auto& items = parser.Items();
  for (std::uint32_t i = 0; i < items.Size(); ++i) {
    if (SameButCase(items[i].fullPath, path)) return &items[i];
  }
  return nullptr;
}

void LinearScan(benchmark::State& state) {
  Fixture& fixture = Fixture::Of(state.range(0));
  std::size_t at = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Scan(fixture.Parser(), fixture.Paths()[at]));
    at = (at + 1) % fixture.Paths().size();
  }
}
BENCHMARK(LinearScan)->Arg(3000)->Arg(100000);

void Lookup(benchmark::State& state) {
  Fixture& fixture = Fixture::Of(state.range(0));
  std::size_t at = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(fixture.Parser().Items().Find(fixture.Paths()[at]));
    at = (at + 1) % fixture.Paths().size();
  }
}
BENCHMARK(Lookup)->Arg(3000)->Arg(100000);

void GetlineOnly(benchmark::State& state) {
  const auto files = Fixture::Of(state.range(0)).Files();
  std::size_t bytes = 0;
  for (auto _ : state) {
    for (const auto& file : files) {
      std::ifstream stream(file, std::ios::binary);
      std::string line;
      while (std::getline(stream, line)) bytes += line.size() + 1;
    }
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}
BENCHMARK(GetlineOnly)->Arg(100000)->Unit(benchmark::kMillisecond);

void LoadProject(benchmark::State& state) {
  const Fixture& fixture = Fixture::Of(state.range(0));
  double perRecord = 0;
  for (auto _ : state) {
    const std::size_t before = bench::LiveBytes();
    auto parser = fixture.Load();
    const auto bytes = static_cast<double>(bench::LiveBytes() - before);
    perRecord = bytes / static_cast<double>(fixture.ItemCount());
    // Closing is not loading.
    state.PauseTiming();
    parser.reset();
    state.ResumeTiming();
  }
  state.counters["bytes_per_item"] = perRecord;
  state.counters["of_fixed_records"] = perRecord / kFixedRecordBytes;
}
BENCHMARK(LoadProject)->Arg(3000)->Arg(100000)->Unit(benchmark::kMillisecond);

void ReadAgc(benchmark::State& state) {
  CFileParser& parser = Fixture::Of(state.range(0)).Parser();
  std::array<std::uint16_t, 91> words;
  std::array<std::uint16_t, 4> boundary;
  std::uint16_t gainIndex = 0;
  for (auto _ : state) {
    nvproject::GetNvValue_Agc(&parser, words.data(), &gainIndex, boundary.data(), 3);
    benchmark::DoNotOptimize(words);
  }
}
BENCHMARK(ReadAgc)->Arg(3000)->Unit(benchmark::kMicrosecond);

// The same 400 values, each found by a scan.
void ScanAgc(benchmark::State& state) {
  const CFileParser& parser = Fixture::Of(state.range(0)).Parser();
  std::vector<std::string> paths;
  for (const std::string band : {"gsm", "dcs", "pcs", "gsm850"}) {
    const std::string structure =
        "calibration_param_T.rf_param_dsp_use.rf_" + band + "_param_dsp_use.";
    paths.push_back(structure + "max_rf_gain_index");
    for (std::uint32_t i = 0; i < 91; ++i) {
      paths.push_back(structure + "agc_ctrl_word" + projectgen::HexadecimalIndex(i));
    }
    for (std::uint32_t i = 0; i < 4; ++i) {
      for (const std::string name : {"TX", "RX"}) {
        paths.push_back(structure + name + "_compensate_boundary_arfcn_index" +
                        projectgen::DecimalIndex(i));
      }
    }
  }
  for (auto _ : state) {
    for (const std::string& path : paths) benchmark::DoNotOptimize(Scan(parser, path));
  }
}
BENCHMARK(ScanAgc)->Arg(3000)->Unit(benchmark::kMicrosecond);

// This many generated items make an image of about 60 KB.
constexpr std::int64_t kLargeImageItems = 26500;

alignas(64) std::array<std::uint8_t, nvproject::kImageCapacity> image;

void BuildImage(benchmark::State& state) {
  CFileParser& parser = Fixture::Of(state.range(0)).Parser();
  std::uint32_t length = 0;
  for (auto _ : state) {
    if (!Succeeded(parser.GenerateImage(image, length, {}))) std::abort();
    benchmark::DoNotOptimize(image);
  }
  state.counters["image_bytes"] = length;
}
BENCHMARK(BuildImage)->Arg(3000)->Arg(kLargeImageItems)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace merovane

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  merovane::bench::RatioReporter reporter({
      {"linear scan / lookup, 3,000 items", "LinearScan/3000", "Lookup/3000", "at least 100"},
      {"linear scan / lookup, 100,000 items", "LinearScan/100000", "Lookup/100000",
       "at least 3,000"},
      {"load / getline only, 100,000 items", "LoadProject/100000", "GetlineOnly/100000",
       "at most 3"},
      {"AGC by scans / QV_GetNvValue_Agc, 3,000 items", "ScanAgc/3000", "ReadAgc/3000",
       "the latter below 20 us"},
  });
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  return 0;
}
