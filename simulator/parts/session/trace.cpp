// The trace output of the ARM and of the DSP.
#include <array>

#include "parts/session/session.h"

namespace handset {
namespace {

constexpr std::uint8_t kLogSwitchType = 2;

struct Source {
  const char* name;
  std::uint8_t onSubtype;
  std::uint8_t offSubtype;
  bool acknowledged;
  std::uint8_t traceType;
  const char* text;
};

constexpr std::array<Source, 2> kSources{{
    {"arm", 4, 5, false, 152, "ARM: task 12 idle"},
    {"dsp", 6, 7, true, 153, "DSP: frame done"},
}};

class TracePart final : public Part {
 public:
  explicit TracePart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "trace"; }

  void Register(Registry& registry) override {
    for (std::size_t i = 0; i < kSources.size(); ++i) {
      registry.On(kLogSwitchType, kSources[i].onSubtype,
                  [this, i](const Frame& frame) { Switch(i, true, frame); });
      registry.On(kLogSwitchType, kSources[i].offSubtype,
                  [this, i](const Frame& frame) { Switch(i, false, frame); });
    }
  }

  void PowerOn() override { streams_ = {}; }

  void Describe(StatusMap& status) const override {
    for (std::size_t i = 0; i < kSources.size(); ++i) {
      status[kSources[i].name] = streams_[i].on ? "on" : "off";
    }
  }

 private:
  struct Stream {
    bool on = false;
    bool scheduled = false;
    std::uint32_t sent = 0;
  };

  void Switch(std::size_t i, bool on, const Frame& frame) {
    if (kSources[i].acknowledged) firmware_.Answer(frame);
    streams_[i].on = on;
    if (on && !streams_[i].scheduled) Schedule(i);
  }

  void Schedule(std::size_t i) {
    streams_[i].scheduled = true;
    firmware_.After(firmware_.Options().traceInterval, [this, i] {
      Stream& stream = streams_[i];
      stream.scheduled = false;
      if (!stream.on) return;
      Bytes payload;
      Append32(payload, stream.sent++, firmware_.Order());
      const Bytes text = ToBytes(kSources[i].text);
      payload.insert(payload.end(), text.begin(), text.end());
      firmware_.Report(kSources[i].traceType, 0, std::move(payload));
      Schedule(i);
    });
  }

  Firmware& firmware_;
  std::array<Stream, kSources.size()> streams_{};
};

}  // namespace

std::unique_ptr<Part> MakeTracePart(Firmware& firmware) {
  return std::make_unique<TracePart>(firmware);
}

}  // namespace handset
