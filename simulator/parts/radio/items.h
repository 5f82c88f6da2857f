// The calibration items: a working copy in RAM, which the radio uses at once, and one in flash,
// from which RAM is loaded at every boot.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <utility>

#include "firmware/firmware.h"
#include "parts/radio/constants.h"

namespace handset {

enum class Copy : std::uint16_t { Ram = 0, Flash = 1 };

struct ItemKind {
  std::size_t bytes;
  std::size_t elementBytes;
  bool perBand;
};

class CalibrationItems {
 public:
  explicit CalibrationItems(Firmware& firmware) : firmware_(firmware) {}

  // Null for an item that this handset does not have.
  static const ItemKind* Kind(std::uint16_t item);

  // What a handset holds that no station has seen: the figures of its type, not its own.
  static void WriteNominal(Storage& flash, ByteOrder order, const RadioConstants& type);
  void LoadRam();
  void Commit();

  // As much of the range as the item has; nothing for an unknown item or band.
  std::optional<Bytes> Read(Copy copy, std::uint16_t band, std::uint16_t item, std::size_t offset,
                            std::size_t bytes) const;
  // False, and nothing changed, for an unknown item or band or a range that passes its end.
  bool Write(Copy copy, std::uint16_t band, std::uint16_t item, std::size_t offset,
             std::span<const std::uint8_t> data);

  // One element of a RAM item of 16-bit elements, 0 where there is none.
  std::uint16_t Value(std::uint16_t band, std::uint16_t item, std::size_t element = 0) const;

 private:
  using Key = std::pair<std::uint16_t, std::uint16_t>;
  static std::string FlashName(Key key);
  static std::optional<Key> Locate(Copy copy, std::uint16_t band, std::uint16_t item);
  Bytes Whole(Copy copy, Key key) const;

  Firmware& firmware_;
  std::map<Key, Bytes> ram_;
};

namespace item {
inline constexpr std::uint16_t kAfcCentre = 2;
inline constexpr std::uint16_t kAfcSlope = 3;
inline constexpr std::uint16_t kCoarseTrim = 6;
inline constexpr std::uint16_t kFineTrim = 7;
inline constexpr std::uint16_t kReceiveCompensation = 18;
inline constexpr std::uint16_t kStepFactors = 21;
inline constexpr std::uint16_t kGainWords = 23;
inline constexpr std::uint16_t kImei = 30;
inline constexpr std::uint16_t kScheme = 33;
inline constexpr std::uint16_t kSecondImei = 35;
}  // namespace item

}  // namespace handset
