// Layer 1's calibration messages, types 10/0 and 10/1.
#pragma once

#include <cstdint>
#include <span>

#include "firmware/firmware.h"
#include "parts/radio/front_end.h"

namespace handset {

enum class CalibrationMode { None, Gsm, TdScdma };

class Layer1 {
 public:
  Layer1(Firmware& firmware, FrontEnd& frontEnd) : firmware_(firmware), frontEnd_(frontEnd) {}

  void Register(Registry& registry);
  void PowerOn();
  void Describe(StatusMap& status) const;
  void ChangeMode(CalibrationMode mode) { mode_ = mode; }
  void Activate(bool active);

 private:
  void Hear(const Frame& frame);
  void HearExtended(const Frame& frame);
  // Acknowledges with the message's header and nothing more.
  void Acknowledge(const Frame& frame);
  void Confirm(std::uint16_t id);
  void MeasureAndReport(const Frame& frame);
  bool HasLength(const Frame& frame, std::uint16_t length) const;
  void SendBlock();

  std::uint16_t U16(const Frame& frame, std::size_t offset) const {
    return Read16(frame.payload, offset, firmware_.Order());
  }
  std::uint32_t U32(const Frame& frame, std::size_t offset) const {
    return Read32(frame.payload, offset, firmware_.Order());
  }

  Firmware& firmware_;
  FrontEnd& frontEnd_;
  CalibrationMode mode_ = CalibrationMode::None;
  bool active_ = false;
  std::vector<Bytes> blocks_;  // of the extended report
  std::size_t nextBlock_ = 0;
};

}  // namespace handset
