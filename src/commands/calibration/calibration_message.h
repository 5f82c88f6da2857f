// The message to the handset's layer 1 that carries most calibration commands: a 16-byte header and
// the command's parameters, in the handset's byte order.
//
//   offset 0  u16  message id
//          2  u16  length of the whole message
//          4  ...  zero
//         16  ...  parameters
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "link/byte_order.h"
#include "link/frame_codec.h"
#include "link/phone_link.h"
#include "link/result.h"

namespace merovane::commands {

inline constexpr FrameId kCalibration{10, 0};
// Carries the extended AFC run.
inline constexpr FrameId kExtendedCalibration{10, 1};
inline constexpr std::uint32_t kCalibrationTimeoutMs = 1000;

// Two commands share it: a handset tells them apart by the mode that it is in.
inline constexpr std::uint16_t kSetPowerStepFactor = 0xA119;

// Bytes that nothing was put to are zero.
template <std::size_t Bytes>
class CalibrationMessage {
 public:
  CalibrationMessage(const PhoneLink& link, std::uint16_t id) : order_(link.Order()) {
    static_assert(Bytes >= 16);
    U16(0, id);
    U16(2, Bytes);
  }

  CalibrationMessage& U16(std::size_t offset, std::uint16_t value) {
    order_.PutU16(bytes_, offset, value);
    return *this;
  }
  CalibrationMessage& U32(std::size_t offset, std::uint32_t value) {
    order_.PutU32(bytes_, offset, value);
    return *this;
  }
  CalibrationMessage& U16s(std::size_t offset, std::span<const std::uint16_t> values) {
    for (std::size_t at = 0; at < values.size(); ++at) U16(offset + 2 * at, values[at]);
    return *this;
  }
  // A field that travels as this machine holds it.
  CalibrationMessage& Raw(std::size_t offset, std::span<const std::uint8_t> data) {
    std::ranges::copy(data, std::span(bytes_).subspan(offset, data.size()).begin());
    return *this;
  }

  std::span<const std::uint8_t> Payload() const { return bytes_; }

 private:
  ByteOrder order_;
  std::array<std::uint8_t, Bytes> bytes_{};
};

// A message that begins with the first fields of a power record.
template <std::size_t Bytes, typename Record>
CalibrationMessage<Bytes> PowerMessage(const PhoneLink& link, std::uint16_t id,
                                       const Record& record) {
  return CalibrationMessage<Bytes>(link, id)
      .U32(16, record.first)
      .U16(20, record.second)
      .U16(22, record.third);
}

// Sends a message and waits for its acknowledgement.
template <std::size_t Bytes>
Result Acknowledged(PhoneLink& link, const CalibrationMessage<Bytes>& message,
                    std::uint32_t timeoutMs = kCalibrationTimeoutMs) {
  return link.SendAndWaitSame(kCalibration, message.Payload(), timeoutMs).Why();
}

}  // namespace merovane::commands
