#include "parts/radio/items.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "parts/memory/fixed_nv.h"

namespace handset {
namespace {

// Items by number.
const std::map<std::uint16_t, ItemKind>& Kinds() {
  static const std::map<std::uint16_t, ItemKind> kinds = [] {
    std::map<std::uint16_t, ItemKind> made;
    made[1] = {64, 4, false};  // ADC
    for (std::uint16_t scalar : {item::kAfcCentre, item::kAfcSlope, std::uint16_t{5},
                                 item::kCoarseTrim, item::kFineTrim}) {
      made[scalar] = {2, 2, false};
    }
    for (const int afcArray : {4, 14, 15})
      made[static_cast<std::uint16_t>(afcArray)] = {34, 2, false};
    made[8] = {640, 2, true};  // ramp tables
    for (const int ramp : {9, 10, 11, 12, 13, 38, 39})
      made[static_cast<std::uint16_t>(ramp)] = {64, 2, true};
    made[item::kReceiveCompensation] = {64, 2, true};
    for (std::uint16_t factors : {item::kStepFactors, std::uint16_t{36}, std::uint16_t{37}}) {
      made[factors] = {2 * kChannelGroups * kLevels, 2, true};
    }
    made[item::kGainWords] = {182, 2, true};
    made[24] = {2, 2, true};  // highest gain index
    made[item::kImei] = made[item::kSecondImei] = {8, 1, false};
    made[item::kScheme] = {12, 2, false};
    constexpr std::size_t kCompensationBytes[] = {10, 18, 18, 12, 12, 8, 8, 10, 8, 10, 2, 2};
    std::uint16_t number = 48;
    for (std::size_t bytes : kCompensationBytes) made[number++] = {bytes, 2, true};
    return made;
  }();
  return kinds;
}

constexpr std::array<std::uint16_t, 4> kBands = {0, 1, 3, 4};

// The IMEIs are in flash alone, in the block where the rest of the handset finds them.
std::optional<FixedNvField> ImeiField(std::uint16_t item) {
  if (item == item::kImei) return kImei1;
  if (item == item::kSecondImei) return kImei2;
  return std::nullopt;
}

bool IsBand(std::uint16_t band) {
  return std::find(kBands.begin(), kBands.end(), band) != kBands.end();
}

}  // namespace

const ItemKind* CalibrationItems::Kind(std::uint16_t item) {
  const auto found = Kinds().find(item);
  return found == Kinds().end() ? nullptr : &found->second;
}

std::string CalibrationItems::FlashName(Key key) {
  return "calibration/" + std::to_string(key.first) + "/" + std::to_string(key.second);
}

// Items that are one for all bands stand under band 0, whatever band is sent with them.
std::optional<CalibrationItems::Key> CalibrationItems::Locate(Copy copy, std::uint16_t band,
                                                              std::uint16_t item) {
  const ItemKind* kind = Kind(item);
  if (!kind || !IsBand(band) || (copy == Copy::Ram && ImeiField(item))) return std::nullopt;
  return Key{kind->perBand ? band : std::uint16_t{0}, item};
}

Bytes CalibrationItems::Whole(Copy copy, Key key) const {
  Bytes whole;
  if (copy == Copy::Flash) {
    if (const auto field = ImeiField(key.second)) return ReadFixedNv(firmware_.Flash(), *field);
    if (const Bytes* stored = firmware_.Flash().Find(FlashName(key))) whole = *stored;
  } else if (auto found = ram_.find(key); found != ram_.end()) {
    whole = found->second;
  }
  whole.resize(Kind(key.second)->bytes);
  return whole;
}

void CalibrationItems::LoadRam() {
  ram_.clear();
  for (const auto& [item, kind] : Kinds()) {
    if (ImeiField(item)) continue;
    for (const std::uint16_t band : kBands) {
      if (band != 0 && !kind.perBand) continue;
      ram_[{band, item}] = Whole(Copy::Flash, {band, item});
    }
  }
}

void CalibrationItems::Commit() {
  for (const auto& [key, bytes] : ram_) firmware_.Flash().Put(FlashName(key), bytes);
}

std::optional<Bytes> CalibrationItems::Read(Copy copy, std::uint16_t band, std::uint16_t item,
                                            std::size_t offset, std::size_t bytes) const {
  const auto key = Locate(copy, band, item);
  if (!key) return std::nullopt;
  const Bytes whole = Whole(copy, *key);
  const std::size_t first = std::min(offset * Kind(item)->elementBytes, whole.size());
  const std::size_t count = std::min(bytes, whole.size() - first);
  return Bytes(whole.begin() + static_cast<std::ptrdiff_t>(first),
               whole.begin() + static_cast<std::ptrdiff_t>(first + count));
}

bool CalibrationItems::Write(Copy copy, std::uint16_t band, std::uint16_t item, std::size_t offset,
                             std::span<const std::uint8_t> data) {
  const auto key = Locate(copy, band, item);
  if (!key) return false;
  const std::size_t first = offset * Kind(item)->elementBytes;
  if (first + data.size() > Kind(item)->bytes) return false;
  Bytes whole = Whole(copy, *key);
  std::copy(data.begin(), data.end(), whole.begin() + static_cast<std::ptrdiff_t>(first));
  if (copy == Copy::Ram) {
    ram_[*key] = std::move(whole);
  } else if (const auto field = ImeiField(item)) {
    WriteFixedNv(firmware_.Flash(), *field, whole);
  } else {
    firmware_.Flash().Put(FlashName(*key), std::move(whole));
  }
  return true;
}

std::uint16_t CalibrationItems::Value(std::uint16_t band, std::uint16_t item,
                                      std::size_t element) const {
  const auto bytes = Read(Copy::Ram, band, item, element, 2);
  return bytes && bytes->size() == 2 ? Read16(*bytes, 0, firmware_.Order()) : std::uint16_t{0};
}

void CalibrationItems::WriteNominal(Storage& flash, ByteOrder order, const RadioConstants& type) {
  const auto put = [&](std::uint16_t band, std::uint16_t item, auto value, std::size_t count) {
    Bytes bytes;
    for (std::size_t i = 0; i < count; ++i)
      Append16(bytes, static_cast<std::uint16_t>(value(i)), order);
    flash.Put(FlashName({band, item}), std::move(bytes));
  };
  put(
      0, item::kAfcCentre, [](std::size_t) { return 4096; }, 1);
  put(
      0, item::kFineTrim, [](std::size_t) { return 4096; }, 1);
  put(
      0, item::kScheme, [](std::size_t i) { return i + 1; }, 6);
  for (const BandConstants& band : type.bands) {
    put(
        band.band, item::kGainWords, [](std::size_t gain) { return 4 * gain; }, 91);
    put(
        band.band, 24, [](std::size_t) { return 90; }, 1);
    put(
        band.band, item::kStepFactors,
        [](std::size_t i) {
          return 4096 * std::pow(10.0, -(3 + 2.0 * static_cast<double>(i % kLevels)) / 20);
        },
        kChannelGroups * kLevels);
  }
}

}  // namespace handset
