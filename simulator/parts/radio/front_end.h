// The transmitter, the receiver and the crystal as they are set now, and what a test instrument on
// the antenna connector sees of them.
#pragma once

#include <cstdint>
#include <optional>

#include "firmware/firmware.h"
#include "parts/radio/constants.h"
#include "parts/radio/items.h"

namespace handset {

class FrontEnd {
 public:
  FrontEnd(Firmware& firmware, const RadioConstants& constants, const CalibrationItems& items)
      : firmware_(firmware), constants_(constants), items_(items) {}

  void PowerOn();

  // --- as commands set it
  // False, and nothing changed, for a band that the handset does not have.
  bool SetBand(std::uint32_t band);
  std::uint16_t Band() const { return band_; }
  void Tune(std::uint16_t channel);
  void SetLevel(std::uint16_t level) { level_ = level; }
  void SetCrystal(std::uint16_t dac) { dac_ = dac; }
  void SetCoarseTrim(std::uint16_t steps) { coarseTrim_ = steps; }
  // With the step factor that RAM holds for the tuned channel and the level, or with a given one in
  // the middle of a group of channels.
  void Transmit() { transmitting_ = Transmitting::FromTable; }
  bool TransmitWith(std::uint32_t group, std::uint16_t factor);
  void StopTransmitting() { transmitting_ = Transmitting::No; }
  void Receive(std::uint16_t gainWord, bool directCurrent);
  void StopReceiving() { receiving_ = false; }
  bool Transmits() const { return transmitting_ != Transmitting::No; }
  bool Receives() const { return receiving_; }

  // --- as the handset measures
  bool IsInBand() const { return TunedBand() != nullptr; }
  // 0 for the first reads after tuning and where nothing is received.
  std::uint16_t MeasureRssi();
  // The same without the settling: the measurement that layer 1 makes and reports itself.
  std::uint16_t SettledRssi();
  std::uint16_t MeasureReceiveLevel();
  std::pair<std::uint16_t, std::uint16_t> MeasureDirectCurrent();

  // --- as the instrument sees it; nothing when the handset does not transmit
  std::optional<double> FrequencyError();
  std::optional<double> Power();
  void SetInput(double dbm) { inputDbm_ = dbm; }
  void SetTemperature(double degrees) { temperature_ = degrees; }
  double Temperature() const { return temperature_; }

 private:
  enum class Transmitting { No, FromTable, WithFactor };

  const BandConstants* TunedBand() const;
  std::uint16_t Factor(const BandConstants& band) const;

  Firmware& firmware_;
  const RadioConstants& constants_;
  const CalibrationItems& items_;
  std::uint16_t band_ = 0;
  std::uint16_t channel_ = 0;
  std::uint16_t level_ = 0;
  std::uint16_t dac_ = 0;
  std::uint16_t coarseTrim_ = 0;
  Transmitting transmitting_ = Transmitting::No;
  std::uint16_t factor_ = 0;
  bool receiving_ = false;
  bool directCurrent_ = false;
  std::uint16_t gainWord_ = 0;
  int readsUntilSettled_ = 0;
  double inputDbm_ = -200;  // nothing connected
  double temperature_ = kRoomTemperature;
};

}  // namespace handset
