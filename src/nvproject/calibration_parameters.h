// Typed access to the calibration parameters of a project, through a cache of their binary values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "nvproject/item_store.h"
#include "nvproject/item_values.h"

namespace merovane::nvproject {

// TD-SCDMA's stands apart: what is done to other bands with one of GSM leaves it alone.
enum class Band { Gsm, Dcs, Pcs, Gsm850, Td };

// Arrays that every band has.
enum class BandArray {
  RampUpStage0,
  RampUpStage1,
  RampDownStage0,
  RampDownStage1,
  TxBoundary,
  StepFactor,
  RxBoundary,
  RxCompensation,
  AgcControlWord,
};

enum class CommonArray { AfcRange, SlopeValue, SlopeReciprocal, AdcVoltage };

enum class CommonValue {
  CalParamVersion,
  AfcCenter,
  AfcSlope,
  SlopeLength,
  Cdac,
  Cafc,
  Adc0,
  Adc1,
  Battery0,
  Battery1,
  ChargeEndVoltage,
  PulseChargeVoltage,
  RechargeVoltage,
  SwitchVoltage,
  VoltageShutdown,
  VoltageWarning,
};

// How many points a ramp table under "RF_ramp_table_T" has.
inline constexpr std::size_t kRampPoints = 20;

// The points of such a table; a band may have any number of them.
ItemArray RampStage(Band band, std::uint32_t stage);

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
  void LoadTd();
  void Load(Band band, BandArray array);
  void LoadCharging();
  void LoadAfcStructure();
  void LoadAdcPoints();
  void Load(CommonValue value) { Load(value, 0); }

  std::span<const std::int16_t> Cached(Band band, BandArray array) const;
  std::span<const std::int16_t> Cached(CommonArray array) const;
  std::uint32_t Cached(CommonValue value) const;
  std::uint16_t CachedGainIndex(Band band) const;

  // Write through the cache to the project.
  void Write(Band band, BandArray array, std::span<const std::int16_t> values) {
    Write(Of(band).arrays[static_cast<std::size_t>(array)], values);
  }
  void Write(CommonArray array, std::span<const std::int16_t> values) {
    Write(arrays_[static_cast<std::size_t>(array)], values);
  }
  void Write(CommonValue value, std::uint32_t number);
  // Writes the cached gain indices of the other GSM bands too (of PCS only when it is the band):
  // those that were never loaded are 0. That of TD-SCDMA is written alone.
  void WriteGainIndex(Band band, std::uint16_t gainIndex);

 private:
  using Values = std::vector<std::int16_t>;
  struct Array {
    ItemArray items;
    Values values;
  };
  struct Value {
    ItemValue item;
    std::uint32_t value = 0;
  };
  struct BandParameters {
    std::vector<Array> arrays;
    Value gainIndex;
  };

  void Load(CommonArray array);
  void LoadGainIndex(Band band);
  void StoreGainIndex(Band band);
  // GSM, DCS and GSM850 always, PCS when it is the band.
  void LoadBands(Band band, BandArray array);
  // Loads a value; `missing` when the project does not have it.
  void Load(CommonValue value, std::uint32_t missing);

  void Write(Array& target, std::span<const std::int16_t> values);

  BandParameters& Of(Band band) { return bands_[static_cast<std::size_t>(band)]; }

  ItemStore* items_;
  std::vector<BandParameters> bands_;
  std::vector<Array> arrays_;
  std::vector<Value> values_;
};

}  // namespace merovane::nvproject
