#pragma once

#include <cstdint>
#include <optional>

#include "handset/firmware.h"
#include "radio/constants.h"
#include "radio/items.h"

namespace handset {

// The transmitter, the receiver and the crystal as they are set now, and what a test instrument on
// the antenna connector sees of them.
class FrontEnd {
 public:
  FrontEnd(Firmware& firmware, const RadioConstants& constants, const CalibrationItems& items)
      : firmware_(firmware), constants_(constants), items_(items) {}

  void PowerOn();

  // --- as commands set it
  void SetBand(uint16_t band) { band_ = band; }
  uint16_t Band() const { return band_; }
  void Tune(uint16_t channel);
  void SetLevel(uint16_t level) { level_ = level; }
  void SetCrystal(uint16_t dac) { dac_ = dac; }
  // With the step factor of the tuned channel and level in RAM, or with one given for a level and
  // group.
  void Transmit();
  void TransmitWith(uint16_t level, size_t group, uint16_t factor);
  void StopTransmitting() { factor_.reset(); }
  void Receive(uint16_t gainWord, bool directCurrent);
  void StopReceiving() { receiving_ = false; }
  void ChangeGain(uint16_t gainWord) { gainWord_ = gainWord; }
  bool Transmits() const { return factor_.has_value(); }
  bool Receives() const { return receiving_; }

  // --- as the handset measures
  // 0 for the first reads after tuning and where nothing is received.
  uint16_t MeasureRssi();
  // The same without the settling: the measurement that layer 1 makes and reports itself.
  uint16_t SettledRssi();
  uint16_t MeasureReceiveLevel();
  std::pair<uint16_t, uint16_t> MeasureDirectCurrent();

  // --- as the instrument sees it; nothing when the handset does not transmit
  std::optional<double> FrequencyError();
  std::optional<double> Power();
  void SetInput(double dbm) { inputDbm_ = dbm; }
  void SetTemperature(double degrees) { temperature_ = degrees; }
  double Temperature() const { return temperature_; }

 private:
  const BandConstants* TunedBand() const;

  Firmware& firmware_;
  const RadioConstants& constants_;
  const CalibrationItems& items_;
  uint16_t band_ = 0;
  uint16_t channel_ = 0;
  uint16_t level_ = 0;
  uint16_t dac_ = 0;
  std::optional<uint16_t> factor_;
  bool receiving_ = false;
  bool directCurrent_ = false;
  uint16_t gainWord_ = 0;
  int readsUntilSettled_ = 0;
  double inputDbm_ = -200;  // nothing connected
  double temperature_ = kRoomTemperature;
};

}  // namespace handset
