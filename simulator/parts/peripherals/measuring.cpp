// ADC channels, battery voltage and pressed keys, types 15, 30 and 1.
#include <algorithm>
#include <cmath>

#include "parts/peripherals/peripherals.h"

namespace handset {
namespace {

constexpr std::uint8_t kAdcType = 15;
constexpr std::uint8_t kVoltType = 30;
constexpr std::uint8_t kKeyType = 1;
constexpr std::uint16_t kKeyMessage = 0xA001;
constexpr std::uint16_t kKeyMessageBytes = 8;
constexpr double kFullMillivolts = 4150;
constexpr double kEmptyMillivolts = 3400;
constexpr double kMillivoltsPerReading = 0.2;
constexpr double kNoiseMillivolts = 2;
constexpr double kNoiseCounts = 3;

class MeasuringPart final : public Part {
 public:
  explicit MeasuringPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "measuring"; }

  void Register(Registry& registry) override {
    // The subtype is the channel.
    registry.OnType(kAdcType, [this](const Frame& frame) { ReadAdc(frame.subtype); });
    registry.On(kVoltType, 0, [this](const Frame& frame) {
      Bytes answer;
      Append32(answer, static_cast<std::uint32_t>(std::lround(Battery())), firmware_.Order());
      firmware_.Answer(frame, std::move(answer));
    });
    registry.On(kKeyType, 0, [this](const Frame& frame) { PressKey(frame); });
  }

  void PowerOn() override {
    battery_ = kFullMillivolts;
    lastKey_ = keys_ = 0;
  }

  void Describe(StatusMap& status) const override {
    status["battery_mv"] = std::to_string(std::lround(battery_));
    status["last_key"] = std::to_string(lastKey_);
    status["keys"] = std::to_string(keys_);
  }

 private:
  // The battery drains a little with every look at it.
  double Battery() {
    battery_ = std::max(kEmptyMillivolts, battery_ - kMillivoltsPerReading);
    return firmware_.Noise().Gaussian(battery_, kNoiseMillivolts);
  }

  // A ten-bit converter whose channels stand at levels of their own; channel 0 is the battery
  // through a divider by four. After the value stand the channel and the converter's scale.
  void ReadAdc(std::uint8_t channel) {
    const double level = channel == 0 ? Battery() / 4 : 200 + 90 * (channel % 8);
    const double counts = firmware_.Noise().Gaussian(level, kNoiseCounts);
    Bytes answer;
    Append16(answer, static_cast<std::uint16_t>(std::clamp(std::lround(counts), 0L, 1023L)),
             firmware_.Order());
    answer.push_back(channel);
    answer.push_back(10);
    firmware_.Answer(kAdcType, 0, std::move(answer));
  }

  void PressKey(const Frame& frame) {
    const ByteOrder order = firmware_.Order();
    if (Read16(frame.payload, 0, order) != kKeyMessage ||
        Read16(frame.payload, 2, order) != kKeyMessageBytes ||
        frame.payload.size() != kKeyMessageBytes) {
      return firmware_.Refuse(frame);
    }
    lastKey_ = Read32(frame.payload, 4, order);
    ++keys_;
    firmware_.Answer(frame);
  }

  Firmware& firmware_;
  double battery_ = 0;
  std::uint32_t lastKey_ = 0;
  std::uint32_t keys_ = 0;
};

}  // namespace

std::unique_ptr<Part> MakeMeasuringPart(Firmware& firmware) {
  return std::make_unique<MeasuringPart>(firmware);
}

}  // namespace handset
