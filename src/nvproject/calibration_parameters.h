// Typed access to the calibration parameters of a project, through a cache of their binary values.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "nvproject/calibration_table.h"
#include "nvproject/item_store.h"
#include "nvproject/item_values.h"

namespace merovane::nvproject {

// Which of the two spellings of the AFC structure's name the items have.
bool HasAreoSpelling(ItemStore& items);

// Parameters that the project does not have read as 0 (elements of an array as the one before) and
// are not written; nobody is told.
class CalibrationParameters {
 public:
  CalibrationParameters(ItemStore& items, bool areoSpelling);

  // Read the project into the cache. PCS is only loaded when it is asked for, but for the gain
  // indices and the boundaries of AGC.
  void LoadAgc(Band band);
  void LoadApc(Band band);
  void LoadStepFactor(Band band) { Load(band, BandArray::StepFactor); }
  void LoadCharging();
  void LoadAfcStructure();
  void LoadAdcPoints();
  void Load(CommonValue value);

  std::span<const std::int16_t> Cached(Band band, BandArray array) const;
  std::span<const std::int16_t> Cached(CommonArray array) const;
  std::uint32_t Cached(CommonValue value) const;
  std::uint16_t CachedGainIndex(Band band) const;

  // Write through the cache to the project.
  void Write(Band band, BandArray array, std::span<const std::int16_t> values);
  void Write(CommonArray array, std::span<const std::int16_t> values);
  void Write(CommonValue value, std::uint32_t number);
  // Writes the cached gain indices of the other bands too (of PCS only when it is the band): those
  // that were never loaded are 0.
  void WriteGainIndex(Band band, std::uint16_t gainIndex);

 private:
  struct Array {
    ItemArray items;
    std::vector<std::int16_t> values;
  };
  struct Value {
    ItemValue item;
    std::uint32_t value = 0;
  };
  struct BandParameters {
    std::vector<Array> arrays;
    Value gainIndex;
  };

  void Load(Band band, BandArray array);
  // GSM, DCS and GSM850 always, PCS when it is the band.
  void LoadBands(Band band, BandArray array);
  // Reads a value; `missing` when the project does not have it.
  void Read(Value& value, Reading reading, std::uint32_t missing);

  Array MakeArray(std::string structure, const ArrayParameter& parameter) const;
  BandParameters& Of(Band band) { return bands_[static_cast<std::size_t>(band)]; }

  ItemStore* items_;
  std::vector<BandParameters> bands_;
  std::vector<Array> arrays_;
  std::vector<Value> values_;
};

}  // namespace merovane::nvproject
