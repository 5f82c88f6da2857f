// The DSP's debug functions, type 50.
#include "parts/memory/memory_map.h"
#include "parts/peripherals/peripherals.h"

namespace handset {
namespace {

constexpr std::uint8_t kDspType = 50;
enum Subtype : std::uint8_t { kResetRf, kReadMemory, kWriteMemory, kPlotFrame };
enum Status : std::uint32_t { kDone = 0, kBadAccess = 1 };
constexpr std::uint32_t kLargestTransferBytes = 9000;

class DspPart final : public Part {
 public:
  explicit DspPart(Firmware& firmware)
      : firmware_(firmware), memory_({{0x0000'0000, 0x4000, false}, {0x0010'0000, 0x8000, true}}) {}

  std::string Name() const override { return "dsp"; }

  void Register(Registry& registry) override {
    registry.On(kDspType, kResetRf, [this](const Frame& frame) {
      ++resets_;
      Reply(frame, kDone, {});
    });
    registry.On(kDspType, kReadMemory, [this](const Frame& frame) {
      const std::uint32_t width = Width(frame);
      const std::uint32_t count = Read16(frame.payload, 8, firmware_.Order());
      const auto bytes = width != 0 && count <= kLargestTransferBytes / width
                             ? memory_.Read(Address(frame), width, count)
                             : std::nullopt;
      Reply(frame, bytes ? kDone : kBadAccess, bytes.value_or(Bytes()));
    });
    registry.On(kDspType, kWriteMemory, [this](const Frame& frame) {
      const std::uint32_t width = Width(frame);
      Bytes bytes;
      const std::uint32_t value = Read32(frame.payload, 8, firmware_.Order());
      if (width == 1) bytes.push_back(static_cast<std::uint8_t>(value));
      if (width == 2) Append16(bytes, static_cast<std::uint16_t>(value), firmware_.Order());
      if (width == 4) Append32(bytes, value, firmware_.Order());
      const bool done = frame.payload.size() == 16 && memory_.Write(Address(frame), width, bytes);
      Reply(frame, done ? kDone : kBadAccess, {});
    });
    registry.On(kDspType, kPlotFrame, [this](const Frame& frame) {
      const bool whole = frame.payload.size() == 12;
      if (whole) lastPlot_ = ToHex(frame.payload);
      Reply(frame, whole ? kDone : kBadAccess, {});
    });
  }

  void PowerOn() override {
    memory_.Reset();
    resets_ = 0;
    lastPlot_.clear();
  }

  void Describe(StatusMap& status) const override {
    status["rf_resets"] = std::to_string(resets_);
    status["last_plot"] = lastPlot_;
  }

 private:
  std::uint32_t Address(const Frame& frame) const {
    return Read32(frame.payload, 0, firmware_.Order());
  }

  // 0 when it is none of the three that the DSP's bus has.
  std::uint32_t Width(const Frame& frame) const {
    const std::uint32_t width = Read32(frame.payload, 4, firmware_.Order());
    return width == 1 || width == 2 || width == 4 ? width : 0;
  }

  void Reply(const Frame& frame, Status status, const Bytes& rest) {
    Bytes answer;
    Append32(answer, status, firmware_.Order());
    answer.insert(answer.end(), rest.begin(), rest.end());
    firmware_.Answer(frame, std::move(answer));
  }

  Firmware& firmware_;
  MemoryMap memory_;
  unsigned resets_ = 0;
  std::string lastPlot_;
};

}  // namespace

std::unique_ptr<Part> MakeDspPart(Firmware& firmware) {
  return std::make_unique<DspPart>(firmware);
}

}  // namespace handset
