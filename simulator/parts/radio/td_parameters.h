// TD-SCDMA calibration parameters, type 36: 16-bit values under a selector, kept in flash.
#pragma once

#include "firmware/firmware.h"

namespace handset {

class TdParameters {
 public:
  explicit TdParameters(Firmware& firmware) : firmware_(firmware) {}
  void Register(Registry& registry);

 private:
  void Read(const Frame& frame);
  void Write(const Frame& frame);

  Firmware& firmware_;
};

}  // namespace handset
