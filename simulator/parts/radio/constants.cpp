#include "parts/radio/constants.h"

#include <algorithm>
#include <cmath>

#include "firmware/random.h"

namespace handset {
namespace {

constexpr double kFullFactor = 4096;
// Keeps the radio's constants apart from the noise of the same seed.
constexpr std::uint64_t kConstantsStream = 0x5244;

BandConstants MakeBand(Random& random, std::uint16_t band, const char* name,
                       std::uint16_t firstChannel, std::uint16_t lastChannel,
                       std::uint8_t firstLevel, double highestPowerDbm) {
  const auto spread = [&](double middle, double width) {
    return middle + width * (2 * random.Uniform() - 1);
  };
  BandConstants made{};
  made.band = band;
  made.name = name;
  made.firstChannel = firstChannel;
  made.lastChannel = lastChannel;
  made.firstLevel = firstLevel;
  made.highestPowerDbm = highestPowerDbm;
  made.transmitGainDbm = spread(highestPowerDbm + 3, 0.8);
  made.compressionDb = spread(0.7, 0.3);
  made.transmitTiltDb = spread(0, 0.6);
  made.transmitDbPerDegree = -spread(0.01, 0.004);
  made.receiveLossDb = spread(1.5, 1.2);
  made.receiveTiltDb = spread(0, 0.8);
  made.gainOffsetDb = spread(0, 2);
  made.gainStepDb = spread(0.25, 0.02);
  return made;
}

}  // namespace

RadioConstants::RadioConstants(std::uint64_t seed) {
  Random random(seed, kConstantsStream);
  const auto spread = [&](double middle, double width) {
    return middle + width * (2 * random.Uniform() - 1);
  };
  centreDac = spread(4096, 500);
  hzPerStep = spread(2.8, 0.4);
  hzPerStepCubed = spread(0, 2e-8);
  hzPerDegree = spread(0, 4);
  directCurrent = {static_cast<std::uint16_t>(500 + random.Below(100)),
                   static_cast<std::uint16_t>(500 + random.Below(100))};
  bands = {MakeBand(random, 0, "GSM900", 1, 124, 5, 33),
           MakeBand(random, 1, "DCS1800", 512, 885, 0, 30),
           MakeBand(random, 3, "PCS1900", 512, 810, 0, 30),
           MakeBand(random, 4, "GSM850", 128, 251, 5, 33)};
}

const BandConstants* RadioConstants::Band(std::uint32_t band) const {
  const auto* found = std::find_if(bands.begin(), bands.end(),
                                   [band](const BandConstants& each) { return each.band == band; });
  return found == bands.end() ? nullptr : &*found;
}

double FrequencyErrorHz(const RadioConstants& constants, double dac, double temperature) {
  const double steps = dac - constants.centreDac;
  return constants.hzPerStep * steps + constants.hzPerStepCubed * steps * steps * steps +
         constants.hzPerDegree * (temperature - kRoomTemperature);
}

double Place(const BandConstants& band, std::uint16_t channel) {
  const double middle = (band.firstChannel + band.lastChannel) / 2.0;
  return (channel - middle) / (band.lastChannel - middle);
}

std::size_t GroupOf(const BandConstants& band, std::uint16_t channel) {
  const double share = (Place(band, channel) + 1) / 2;
  return std::min(static_cast<std::size_t>(std::max(share, 0.0) * kChannelGroups),
                  kChannelGroups - 1);
}

std::uint16_t MiddleOfGroup(const BandConstants& band, std::size_t group) {
  const double width = (band.lastChannel - band.firstChannel) / static_cast<double>(kChannelGroups);
  return static_cast<std::uint16_t>(band.firstChannel + width * (static_cast<double>(group) + 0.5));
}

double TransmitPowerDbm(const BandConstants& band, std::uint16_t channel, std::uint16_t factor,
                        double temperature) {
  const double share = std::max<double>(factor, 1) / kFullFactor;
  return band.transmitGainDbm + 20 * std::log10(share) - band.compressionDb * std::pow(share, 4) +
         band.transmitTiltDb * Place(band, channel) +
         band.transmitDbPerDegree * (temperature - kRoomTemperature);
}

double TargetPowerDbm(const BandConstants& band, std::size_t level) {
  return band.highestPowerDbm - 2 * static_cast<double>(level);
}

double TrueFactor(const BandConstants& band, std::uint16_t channel, double powerDbm) {
  double low = 1, high = kFullFactor;
  const double tilt = band.transmitTiltDb * Place(band, channel);
  for (int i = 0; i < 60; ++i) {
    const double middle = (low + high) / 2;
    const double share = middle / kFullFactor;
    const double power = band.transmitGainDbm + 20 * std::log10(share) -
                         band.compressionDb * std::pow(share, 4) + tilt;
    (power < powerDbm ? low : high) = middle;
  }
  return low;
}

double ReceivedDbm(const BandConstants& band, std::uint16_t channel, double inputDbm) {
  return inputDbm - band.receiveLossDb - band.receiveTiltDb * Place(band, channel);
}

double GainDb(const BandConstants& band, std::uint16_t gainWord) {
  return band.gainOffsetDb + band.gainStepDb * gainWord;
}

double Rssi(double receivedDbm, double gainDb) { return 64 * (receivedDbm + gainDb + 130); }

double ReceiveLevel(double receivedDbm, std::int16_t compensation) {
  return 4 * (receivedDbm + 110) + compensation;
}

}  // namespace handset
