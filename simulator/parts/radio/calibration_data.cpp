#include "parts/radio/calibration_data.h"

#include <algorithm>
#include <span>
#include <stdexcept>

namespace handset {
namespace {

constexpr std::uint8_t kType = 32;
constexpr std::size_t kHeaderBytes = 10;
constexpr milliseconds kCommitTime{150};

enum StepItem : std::uint16_t {
  kChannel = 19,
  kLevel = 20,
  kRssi = 25,
  kReceiveLevel = 26,
  kActive = 27,
  kTransmitter = 28,
  kReceiver = 29,
  kSave = 32,
  kNonSignal = 40,
  kDirectCurrent = 41,
  kInitGsm = 42,
  kChangeToTd = 43,
};

}  // namespace

void CalibrationData::Register(Registry& registry) {
  registry.On(kType, 0, [this](const Frame& frame) { Write(frame); });
  registry.On(kType, 1, [this](const Frame& frame) { Read(frame); });
}

CalibrationData::Header CalibrationData::HeaderOf(const Frame& frame) const {
  return {U16(frame, 0), U16(frame, 2), U16(frame, 4), U16(frame, 6), U16(frame, 8)};
}

void CalibrationData::Acknowledge(const Frame& frame) {
  firmware_.Answer(frame, Bytes(frame.payload.begin(), frame.payload.begin() + 6));
}

void CalibrationData::Write(const Frame& frame) {
  const Header header = HeaderOf(frame);
  if (header.copy > 1 || frame.payload.size() != kHeaderBytes + header.bytes) {
    return firmware_.Refuse(frame);
  }
  if (header.item == kSave && header.copy == 1 && header.bytes == 0) {
    // Writing flash takes its time.
    return firmware_.After(kCommitTime, [this, frame] { Commit(frame); });
  }
  if (header.copy == 0 && Step(frame, header)) return;
  const auto data = std::span(frame.payload).subspan(kHeaderBytes);
  if (!items_.Write(static_cast<Copy>(header.copy), header.band, header.item, header.offset,
                    data)) {
    return firmware_.Refuse(frame);
  }
  // The radio uses what is in RAM at once.
  if (header.copy == 0) {
    const std::uint16_t value = items_.Value(0, header.item);
    if (header.item == item::kAfcCentre || header.item == item::kFineTrim) {
      frontEnd_.SetCrystal(value);
    } else if (header.item == item::kCoarseTrim) {
      frontEnd_.SetCoarseTrim(value);
    }
  }
  Acknowledge(frame);
}

void CalibrationData::Commit(const Frame& frame) {
  items_.Commit();
  try {
    // Now, not after the answer: who has that may cut the power.
    firmware_.Flash().Save();
  } catch (const std::runtime_error& error) {
    firmware_.Note(error.what());
    return firmware_.Refuse(frame);
  }
  Acknowledge(frame);
}

bool CalibrationData::Step(const Frame& frame, const Header& header) {
  const auto word = [&](std::size_t offset) { return U16(frame, kHeaderBytes + offset); };
  const auto has = [&](std::size_t bytes) { return header.bytes == bytes; };
  switch (header.item) {
    case kChannel:
      if (!has(2) || !frontEnd_.SetBand(header.band)) break;
      frontEnd_.Tune(word(0));
      Acknowledge(frame);
      return true;
    case kLevel:
      if (!has(2)) break;
      frontEnd_.SetLevel(word(0));
      Acknowledge(frame);
      return true;
    case kActive:
      if (!has(2)) break;
      layer1_.Activate(word(0) != 0);
      Acknowledge(frame);
      return true;
    case kTransmitter:
      if (!has(20) || !frontEnd_.SetBand(header.band)) break;
      if (frame.payload[kHeaderBytes + 10]) {
        frontEnd_.Transmit();
      } else {
        frontEnd_.StopTransmitting();
      }
      Acknowledge(frame);
      return true;
    case kReceiver: {
      if (!has(20) || word(8) != 18 || !frontEnd_.SetBand(header.band)) break;
      const bool directCurrent = frame.payload[kHeaderBytes + 18] != 0;
      if (frame.payload[kHeaderBytes + 10]) {
        frontEnd_.Receive(word(0), directCurrent);
      } else {
        frontEnd_.StopReceiving();
      }
      Acknowledge(frame);
      return true;
    }
    case kNonSignal:
      if (!has(14)) break;
      NonSignal(frame);
      return true;
    case kInitGsm:
    case kChangeToTd:
      if (!has(0)) break;
      layer1_.ChangeMode(header.item == kInitGsm ? CalibrationMode::Gsm : CalibrationMode::TdScdma);
      Acknowledge(frame);
      return true;
    default:
      break;
  }
  return false;
}

// The commands 1 to 5 do nothing that shows; 6 measures what is received.
void CalibrationData::NonSignal(const Frame& frame) {
  const std::uint16_t id = U16(frame, kHeaderBytes + 10);
  const bool known = id >= 1 && id <= 6;
  Bytes answer;
  Append16(answer, known ? 0 : 1, firmware_.Order());
  const bool measures = id == 6;
  Append16(answer, measures ? frontEnd_.SettledRssi() : std::uint16_t{0}, firmware_.Order());
  Append16(answer, measures ? frontEnd_.MeasureReceiveLevel() : std::uint16_t{0},
           firmware_.Order());
  Append16(answer, 0, firmware_.Order());
  firmware_.Answer(frame, std::move(answer));
}

bool CalibrationData::Measure(const Frame& frame, const Header& header) {
  Bytes data;
  if (header.item == kRssi && header.bytes == 2) {
    Append16(data, frontEnd_.MeasureRssi(), firmware_.Order());
  } else if (header.item == kReceiveLevel && header.bytes == 2) {
    Append16(data, frontEnd_.MeasureReceiveLevel(), firmware_.Order());
  } else if (header.item == kDirectCurrent && header.bytes == 4) {
    const auto [first, second] = frontEnd_.MeasureDirectCurrent();
    Append16(data, second, firmware_.Order());
    Append16(data, first, firmware_.Order());
  } else {
    return false;
  }
  Bytes answer(frame.payload.begin(), frame.payload.begin() + 6);
  answer.insert(answer.end(), data.begin(), data.end());
  firmware_.Answer(frame, std::move(answer));
  return true;
}

void CalibrationData::Read(const Frame& frame) {
  const Header header = HeaderOf(frame);
  if (header.copy > 1 || frame.payload.size() != kHeaderBytes) return firmware_.Refuse(frame);
  if (header.copy == 0 && Measure(frame, header)) return;
  const auto data = items_.Read(static_cast<Copy>(header.copy), header.band, header.item,
                                header.offset, header.bytes);
  if (!data) return firmware_.Refuse(frame);
  Bytes answer(frame.payload.begin(), frame.payload.begin() + 6);
  answer.insert(answer.end(), data->begin(), data->end());
  firmware_.Answer(frame, std::move(answer));
}

}  // namespace handset
