// The calibration data command, type 32: items in RAM and flash, and the pseudo-items that are
// radio steps.
#pragma once

#include <cstdint>

#include "firmware/firmware.h"
#include "parts/radio/front_end.h"
#include "parts/radio/items.h"
#include "parts/radio/layer1.h"

namespace handset {

class CalibrationData {
 public:
  CalibrationData(Firmware& firmware, CalibrationItems& items, FrontEnd& frontEnd, Layer1& layer1)
      : firmware_(firmware), items_(items), frontEnd_(frontEnd), layer1_(layer1) {}

  void Register(Registry& registry);

 private:
  struct Header {
    std::uint16_t copy, band, item, offset, bytes;
  };

  void Write(const Frame& frame);
  void Read(const Frame& frame);
  void Commit(const Frame& frame);
  // True when the item is a radio step, which has been carried out and answered.
  bool Step(const Frame& frame, const Header& header);
  bool Measure(const Frame& frame, const Header& header);
  void NonSignal(const Frame& frame);
  void Acknowledge(const Frame& frame);
  Header HeaderOf(const Frame& frame) const;
  std::uint16_t U16(const Frame& frame, std::size_t offset) const {
    return Read16(frame.payload, offset, firmware_.Order());
  }

  Firmware& firmware_;
  CalibrationItems& items_;
  FrontEnd& frontEnd_;
  Layer1& layer1_;
};

}  // namespace handset
