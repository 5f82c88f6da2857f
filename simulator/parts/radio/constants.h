// What makes this handset's radio another one than the next: the constants that a calibration
// has to find. They follow from the handset's seed, and nothing on the diagnostic port tells them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace handset {

struct BandConstants {
  std::uint16_t band;  // as commands name it
  const char* name;
  std::uint16_t firstChannel;
  std::uint16_t lastChannel;
  std::uint8_t firstLevel;  // the power control level of the highest power
  double highestPowerDbm;  // what the network expects at that level; 2 dB less for each further one
  double transmitGainDbm;  // power at factor 4096, without compression
  double compressionDb;    // lost at factor 4096; grows with the fourth power of the factor
  double transmitTiltDb;   // from the band's middle to its last channel
  double transmitDbPerDegree;
  double receiveLossDb;
  double receiveTiltDb;
  double gainOffsetDb;  // at gain word 0
  double gainStepDb;    // per gain word
};

// A band has five groups of channels, each with step factors for 16 levels and a receive
// compensation.
inline constexpr std::size_t kChannelGroups = 5;
inline constexpr std::size_t kLevels = 16;

struct RadioConstants {
  double centreDac;  // where the crystal is right at 25 degrees
  double hzPerStep;
  double hzPerStepCubed;  // the crystal's curve
  double hzPerDegree;
  std::array<std::uint16_t, 2> directCurrent;
  std::array<BandConstants, 4> bands;

  explicit RadioConstants(std::uint64_t seed);
  const BandConstants* Band(std::uint32_t band) const;
};

inline constexpr double kRoomTemperature = 25;

double FrequencyErrorHz(const RadioConstants& constants, double dac, double temperature);

// -1 at the band's first channel, 1 at its last.
double Place(const BandConstants& band, std::uint16_t channel);
std::size_t GroupOf(const BandConstants& band, std::uint16_t channel);
std::uint16_t MiddleOfGroup(const BandConstants& band, std::size_t group);

double TransmitPowerDbm(const BandConstants& band, std::uint16_t channel, std::uint16_t factor,
                        double temperature);
double TargetPowerDbm(const BandConstants& band, std::size_t level);
// The factor that gives the power: what a calibration should find.
double TrueFactor(const BandConstants& band, std::uint16_t channel, double powerDbm);

// What reaches the receiver's amplifier.
double ReceivedDbm(const BandConstants& band, std::uint16_t channel, double inputDbm);
double GainDb(const BandConstants& band, std::uint16_t gainWord);
// As the handset reports it: 1/64 dB above -130 dBm.
double Rssi(double receivedDbm, double gainDb);
// 1/4 dB above -110 dBm, with the compensation in quarters of a dB.
double ReceiveLevel(double receivedDbm, std::int16_t compensation);

}  // namespace handset
