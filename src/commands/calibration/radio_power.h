// Frames that switch the handset's radio to full power and back.
#pragma once

#include "commands/operation.h"
#include "link/frame_codec.h"
#include "link/result.h"

namespace merovane::commands {

inline constexpr FrameId kMaxTxPower{17, 6};
inline constexpr FrameId kMaxRxPower{17, 5};
// Leaves either.
inline constexpr FrameId kNormalPower{17, 0};

// The handset does not answer.
inline Result SwitchPower(Operation& operation, FrameId power) {
  return operation.Finish(operation.link.SendFrame(power));
}

}  // namespace merovane::commands
