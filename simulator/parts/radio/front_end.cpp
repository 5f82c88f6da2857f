#include "parts/radio/front_end.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace handset {
namespace {

constexpr int kReadsUntilSettled = 2;
// The coarse trim counts from the crystal's own place, in both directions.
constexpr double kFineStepsPerCoarseStep = 32;
// Spread of single measurements.
constexpr double kRssiNoise = 2;  // 1/32 dB
constexpr double kReceiveLevelNoise = 0.2;
constexpr double kFrequencyNoiseHz = 0.5;
constexpr double kPowerNoiseDb = 0.01;

std::uint16_t Rounded(double value) {
  return static_cast<std::uint16_t>(
      std::clamp(std::round(value), 0.0, double{std::numeric_limits<std::uint16_t>::max()}));
}

}  // namespace

void FrontEnd::PowerOn() {
  band_ = channel_ = level_ = gainWord_ = 0;
  dac_ = items_.Value(0, item::kAfcCentre);
  coarseTrim_ = items_.Value(0, item::kCoarseTrim);
  StopTransmitting();
  receiving_ = directCurrent_ = false;
  readsUntilSettled_ = 0;
}

bool FrontEnd::SetBand(std::uint32_t band) {
  if (!constants_.Band(band)) return false;
  band_ = static_cast<std::uint16_t>(band);
  return true;
}

void FrontEnd::Tune(std::uint16_t channel) {
  channel_ = channel;
  readsUntilSettled_ = kReadsUntilSettled;
}

const BandConstants* FrontEnd::TunedBand() const {
  const BandConstants* band = constants_.Band(band_);
  return band && channel_ >= band->firstChannel && channel_ <= band->lastChannel ? band : nullptr;
}

bool FrontEnd::TransmitWith(std::uint32_t group, std::uint16_t factor) {
  if (group >= kChannelGroups) return false;
  channel_ = MiddleOfGroup(*constants_.Band(band_), group);
  factor_ = factor;
  transmitting_ = Transmitting::WithFactor;
  return true;
}

std::uint16_t FrontEnd::Factor(const BandConstants& band) const {
  if (transmitting_ == Transmitting::WithFactor) return factor_;
  if (level_ < band.firstLevel || level_ >= band.firstLevel + kLevels) return 0;
  const std::size_t element = GroupOf(band, channel_) * kLevels + (level_ - band.firstLevel);
  return items_.Value(band_, item::kStepFactors, element);
}

void FrontEnd::Receive(std::uint16_t gainWord, bool directCurrent) {
  receiving_ = true;
  gainWord_ = gainWord;
  directCurrent_ = directCurrent;
  readsUntilSettled_ = kReadsUntilSettled;
}

std::uint16_t FrontEnd::MeasureRssi() {
  if (readsUntilSettled_ > 0) {
    --readsUntilSettled_;
    return 0;
  }
  return SettledRssi();
}

std::uint16_t FrontEnd::SettledRssi() {
  const BandConstants* band = TunedBand();
  if (!receiving_ || !band) return 0;
  const double ideal =
      handset::Rssi(ReceivedDbm(*band, channel_, inputDbm_), GainDb(*band, gainWord_));
  return Rounded(firmware_.Noise().Gaussian(ideal, kRssiNoise));
}

std::uint16_t FrontEnd::MeasureReceiveLevel() {
  const BandConstants* band = TunedBand();
  if (!receiving_ || !band) return 0;
  const auto compensation = static_cast<std::int16_t>(
      items_.Value(band_, item::kReceiveCompensation, GroupOf(*band, channel_)));
  const double ideal = ReceiveLevel(ReceivedDbm(*band, channel_, inputDbm_), compensation);
  return Rounded(firmware_.Noise().Gaussian(ideal, kReceiveLevelNoise));
}

std::pair<std::uint16_t, std::uint16_t> FrontEnd::MeasureDirectCurrent() {
  if (!receiving_ || !directCurrent_) return {std::uint16_t{0}, std::uint16_t{0}};
  const auto noisy = [&](std::uint16_t value) {
    return Rounded(firmware_.Noise().Gaussian(value, 1));
  };
  const std::uint16_t first = noisy(constants_.directCurrent[0]);
  return {first, noisy(constants_.directCurrent[1])};
}

std::optional<double> FrontEnd::FrequencyError() {
  if (!Transmits() || !IsInBand()) return std::nullopt;
  const double dac = dac_ + kFineStepsPerCoarseStep * static_cast<std::int16_t>(coarseTrim_);
  return firmware_.Noise().Gaussian(FrequencyErrorHz(constants_, dac, temperature_),
                                    kFrequencyNoiseHz);
}

std::optional<double> FrontEnd::Power() {
  const BandConstants* band = TunedBand();
  if (!Transmits() || !band) return std::nullopt;
  return firmware_.Noise().Gaussian(TransmitPowerDbm(*band, channel_, Factor(*band), temperature_),
                                    kPowerNoiseDb);
}

}  // namespace handset
