#include "parts/radio/layer1.h"

#include <algorithm>
#include <cmath>

namespace handset {
namespace {

constexpr std::uint8_t kType = 10;
constexpr std::size_t kHeaderBytes = 16;
constexpr milliseconds kMeasurementTime{30};
constexpr std::size_t kBlockBytes = 2048;
constexpr std::size_t kShortBlockBytes = 480;
constexpr std::size_t kStepBytes = 4;
// More steps than this the extended run does not take.
constexpr std::size_t kMaxSteps = 6912;

enum Message : std::uint16_t {
  kActivate = 0xA101,
  kDeactivate = 0xA102,
  kClassmark = 0xA103,
  kAgcStart = 0xA111,
  kAgcStop = 0xA112,
  kAfcStart = 0xA114,
  kAfcStop = 0xA115,
  kRamp = 0xA118,
  kPowerStep = 0xA119,  // longer in TD mode
  kPowerAmplifier = 0xA11A,
  kExtendedStart = 0xA124,
  kExtendedStop = 0xA125,
  kExtendedNext = 0xA126,
  kTdPowerSweep = 0xA128,
  kTdStart = 0xA129,
  kTdSweep = 0xA12A,
  kChangeToGsm = 0xA12D,
  kInitTd = 0xA12F,
};

}  // namespace

void Layer1::Register(Registry& registry) {
  registry.On(kType, 0, [this](const Frame& frame) { Hear(frame); });
  registry.On(kType, 1, [this](const Frame& frame) { HearExtended(frame); });
}

void Layer1::PowerOn() {
  mode_ = CalibrationMode::None;
  active_ = false;
  blocks_.clear();
}

void Layer1::Describe(StatusMap& status) const {
  status["calibration_mode"] = mode_ == CalibrationMode::Gsm       ? "GSM"
                               : mode_ == CalibrationMode::TdScdma ? "TD-SCDMA"
                                                                   : "none";
  status["active"] = active_ ? "yes" : "no";
}

void Layer1::Activate(bool active) {
  active_ = active;
  if (active) return;
  frontEnd_.StopTransmitting();
  frontEnd_.StopReceiving();
}

bool Layer1::HasLength(const Frame& frame, std::uint16_t length) const {
  return frame.payload.size() == length && U16(frame, 2) == length;
}

void Layer1::Acknowledge(const Frame& frame) {
  Bytes header;
  Append16(header, U16(frame, 0), firmware_.Order());
  Append16(header, kHeaderBytes, firmware_.Order());
  header.resize(kHeaderBytes);
  firmware_.Answer(frame, std::move(header));
}

void Layer1::Confirm(std::uint16_t id) {
  Bytes confirmation;
  Append16(confirmation, id, firmware_.Order());
  Append16(confirmation, kHeaderBytes + 4, firmware_.Order());
  confirmation.resize(kHeaderBytes);
  Append32(confirmation, 0, firmware_.Order());  // its status
  firmware_.Answer(kType, 0, std::move(confirmation));
}

void Layer1::Hear(const Frame& frame) {
  const std::uint16_t id = U16(frame, 0);
  const bool td = mode_ == CalibrationMode::TdScdma;
  switch (id) {
    case kChangeToGsm:
    case kInitTd:
      if (!HasLength(frame, 20)) return firmware_.Refuse(frame);
      mode_ = id == kChangeToGsm ? CalibrationMode::Gsm : CalibrationMode::TdScdma;
      Acknowledge(frame);
      return Confirm(id);
    case kActivate:
    case kDeactivate:
      if (!HasLength(frame, 16)) return firmware_.Refuse(frame);
      Activate(id == kActivate);
      return Acknowledge(frame);
    default:
      break;
  }
  // Everything else needs the calibration layer.
  if (!active_) return firmware_.Refuse(frame);
  switch (id) {
    case kClassmark:
      if (!HasLength(frame, 20) || !frontEnd_.SetBand(U32(frame, 16))) break;
      return Acknowledge(frame);
    case kAfcStart:
      if (!HasLength(frame, 24)) break;
      frontEnd_.Tune(U16(frame, 16));
      frontEnd_.SetLevel(U16(frame, 18));
      frontEnd_.SetCrystal(U16(frame, 20));
      frontEnd_.Transmit();
      return Acknowledge(frame);
    case kAfcStop:
      if (!HasLength(frame, 16)) break;
      frontEnd_.StopTransmitting();
      return Acknowledge(frame);
    case kAgcStart:
      if (!HasLength(frame, 36) || U16(frame, 32) != 18) break;
      return MeasureAndReport(frame);
    case kAgcStop:
      if (!HasLength(frame, 16)) break;
      frontEnd_.StopReceiving();
      return Acknowledge(frame);
    case kRamp:
      if (!HasLength(frame, 88)) break;
      return Acknowledge(frame);
    case kPowerStep:
      if (!HasLength(frame, td ? 32 : 28)) break;
      if (!td) frontEnd_.SetLevel(U16(frame, 20));
      if (!td && !(frontEnd_.SetBand(U32(frame, 16)) &&
                   frontEnd_.TransmitWith(U32(frame, 24), U16(frame, 22)))) {
        break;
      }
      return Acknowledge(frame);
    case kPowerAmplifier:
      if (!HasLength(frame, 28)) break;
      return Acknowledge(frame);
    case kTdSweep:
      if (!td || !HasLength(frame, 60) || U16(frame, 24) > 8) break;
      return Acknowledge(frame);
    case kTdStart:
      if (!td || !HasLength(frame, 40)) break;
      return Acknowledge(frame);
    case kTdPowerSweep:
      if (!td || !HasLength(frame, 36)) break;
      return Acknowledge(frame);
    default:
      break;
  }
  firmware_.Refuse(frame);
}

void Layer1::MeasureAndReport(const Frame& frame) {
  frontEnd_.Tune(U16(frame, 20));
  frontEnd_.Receive(U16(frame, 22), false);
  const std::uint32_t first = U32(frame, 16);
  Acknowledge(frame);
  firmware_.After(kMeasurementTime, [this, first] {
    if (!frontEnd_.Receives()) return;
    Bytes report;
    Append16(report, kAgcStart, firmware_.Order());
    Append16(report, 28, firmware_.Order());
    report.resize(18);
    Append32(report, first, firmware_.Order());
    Append16(report, frontEnd_.MeasureReceiveLevel(), firmware_.Order());
    Append16(report, frontEnd_.SettledRssi(), firmware_.Order());
    report.resize(28);
    firmware_.Answer(kType, 0, std::move(report));
  });
}

// The extended run sweeps the crystal: from the first value to the second in steps of the third, on
// the channel in the fourth. Its report is a pair of words for each step, the value and the
// frequency error in Hz.
void Layer1::HearExtended(const Frame& frame) {
  const std::uint16_t id = U16(frame, 0);
  if (!active_) return firmware_.Refuse(frame);
  if (id == kExtendedStop && HasLength(frame, 16)) {
    blocks_.clear();
    frontEnd_.StopTransmitting();
    return Acknowledge(frame);
  }
  if (id == kExtendedNext && HasLength(frame, 16) && nextBlock_ < blocks_.size())
    return SendBlock();
  if (id != kExtendedStart || !HasLength(frame, 24)) return firmware_.Refuse(frame);

  const std::uint32_t first = U16(frame, 16);
  const std::uint32_t last = U16(frame, 18);
  const std::uint32_t step = std::max<std::uint32_t>(U16(frame, 20), 1);
  if (last < first || (last - first) / step >= kMaxSteps) return firmware_.Refuse(frame);
  frontEnd_.Tune(U16(frame, 22));
  if (!frontEnd_.IsInBand()) return firmware_.Refuse(frame);
  frontEnd_.Transmit();
  Bytes report;
  for (std::uint32_t dac = first; dac <= last; dac += step) {
    frontEnd_.SetCrystal(static_cast<std::uint16_t>(dac));
    const double error = std::clamp(frontEnd_.FrequencyError().value_or(0), -32768.0, 32767.0);
    Append16(report, static_cast<std::uint16_t>(dac), firmware_.Order());
    Append16(report, static_cast<std::uint16_t>(std::lround(error)), firmware_.Order());
  }
  // In blocks of about one size: a station takes a short one for the end, and a single one for no
  // report.
  std::size_t blocks = (report.size() + kBlockBytes - 1) / kBlockBytes;
  if (blocks == 1 && report.size() > 2 * kShortBlockBytes) blocks = 2;
  const std::size_t stepsPerBlock = (report.size() / kStepBytes + blocks - 1) / blocks;
  blocks_.clear();
  for (std::size_t at = 0; at < report.size(); at += kStepBytes * stepsPerBlock) {
    const std::size_t end = std::min(at + kStepBytes * stepsPerBlock, report.size());
    blocks_.emplace_back(report.begin() + static_cast<std::ptrdiff_t>(at),
                         report.begin() + static_cast<std::ptrdiff_t>(end));
  }
  nextBlock_ = 0;
  SendBlock();
}

void Layer1::SendBlock() {
  Bytes block;
  Append16(block, kExtendedStart, firmware_.Order());
  Append16(block, static_cast<std::uint16_t>(20 + blocks_[nextBlock_].size()), firmware_.Order());
  block.resize(kHeaderBytes);
  Append16(block, static_cast<std::uint16_t>(blocks_.size()), firmware_.Order());
  Append16(block, static_cast<std::uint16_t>(nextBlock_), firmware_.Order());
  block.insert(block.end(), blocks_[nextBlock_].begin(), blocks_[nextBlock_].end());
  ++nextBlock_;
  firmware_.Answer(kType, 1, std::move(block));
}

}  // namespace handset
