#include "radio/front_end.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace handset {
namespace {

constexpr int kReadsUntilSettled = 2;
// Spread of single measurements.
constexpr double kRssiNoise = 2;  // 1/32 dB
constexpr double kReceiveLevelNoise = 0.2;
constexpr double kFrequencyNoiseHz = 0.5;
constexpr double kPowerNoiseDb = 0.01;

uint16_t Rounded(double value) {
  return static_cast<uint16_t>(
      std::clamp(std::round(value), 0.0, double{std::numeric_limits<uint16_t>::max()}));
}

}  // namespace

void FrontEnd::PowerOn() {
  band_ = channel_ = level_ = gainWord_ = 0;
  dac_ = items_.Value(0, item::kAfcCentre);
  factor_.reset();
  receiving_ = directCurrent_ = false;
  readsUntilSettled_ = 0;
}

void FrontEnd::Tune(uint16_t channel) {
  channel_ = channel;
  readsUntilSettled_ = kReadsUntilSettled;
}

const BandConstants* FrontEnd::TunedBand() const {
  const BandConstants* band = constants_.Band(band_);
  return band && channel_ >= band->firstChannel && channel_ <= band->lastChannel ? band : nullptr;
}

void FrontEnd::Transmit() {
  factor_ = 0;
  const BandConstants* band = TunedBand();
  if (!band || level_ < band->firstLevel || level_ >= band->firstLevel + kLevels) return;
  const size_t element = GroupOf(*band, channel_) * kLevels + (level_ - band->firstLevel);
  factor_ = items_.Value(band_, item::kStepFactors, element);
}

void FrontEnd::TransmitWith(uint16_t level, size_t group, uint16_t factor) {
  level_ = level;
  const BandConstants* band = constants_.Band(band_);
  if (band && group < kChannelGroups) channel_ = MiddleOfGroup(*band, group);
  factor_ = factor;
}

void FrontEnd::Receive(uint16_t gainWord, bool directCurrent) {
  receiving_ = true;
  gainWord_ = gainWord;
  directCurrent_ = directCurrent;
  readsUntilSettled_ = kReadsUntilSettled;
}

uint16_t FrontEnd::MeasureRssi() {
  if (readsUntilSettled_ > 0) {
    --readsUntilSettled_;
    return 0;
  }
  return SettledRssi();
}

uint16_t FrontEnd::SettledRssi() {
  const BandConstants* band = TunedBand();
  if (!receiving_ || !band) return 0;
  const double ideal =
      handset::Rssi(ReceivedDbm(*band, channel_, inputDbm_), GainDb(*band, gainWord_));
  return Rounded(firmware_.Noise().Gaussian(ideal, kRssiNoise));
}

uint16_t FrontEnd::MeasureReceiveLevel() {
  const BandConstants* band = TunedBand();
  if (!receiving_ || !band) return 0;
  const auto compensation = static_cast<int16_t>(
      items_.Value(band_, item::kReceiveCompensation, GroupOf(*band, channel_)));
  const double ideal = ReceiveLevel(ReceivedDbm(*band, channel_, inputDbm_), compensation);
  return Rounded(firmware_.Noise().Gaussian(ideal, kReceiveLevelNoise));
}

std::pair<uint16_t, uint16_t> FrontEnd::MeasureDirectCurrent() {
  if (!receiving_ || !directCurrent_) return {uint16_t{0}, uint16_t{0}};
  const auto noisy = [&](uint16_t value) { return Rounded(firmware_.Noise().Gaussian(value, 1)); };
  const uint16_t first = noisy(constants_.directCurrent[0]);
  return {first, noisy(constants_.directCurrent[1])};
}

std::optional<double> FrontEnd::FrequencyError() {
  if (!factor_ || !TunedBand()) return std::nullopt;
  return firmware_.Noise().Gaussian(FrequencyErrorHz(constants_, dac_, temperature_),
                                    kFrequencyNoiseHz);
}

std::optional<double> FrontEnd::Power() {
  const BandConstants* band = TunedBand();
  if (!factor_ || !band) return std::nullopt;
  return firmware_.Noise().Gaussian(TransmitPowerDbm(*band, channel_, *factor_, temperature_),
                                    kPowerNoiseDb);
}

}  // namespace handset
