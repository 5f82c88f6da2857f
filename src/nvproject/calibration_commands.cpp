// The typed commands: arguments and bands in, cached parameters out.
#include <array>
#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "declared/nv_project.h"

namespace merovane::nvproject::body {
namespace {

// As callers number them.
constexpr std::array kBands = {Band::Gsm, Band::Gsm850, Band::Dcs, Band::Pcs};

// Callers have the same bits as unsigned values.
void Deliver(std::span<const std::int16_t> values, std::span<std::uint16_t> out) {
  std::memcpy(out.data(), values.data(), values.size_bytes());
}

void Deliver(std::uint32_t value, std::uint16_t& out) { out = static_cast<std::uint16_t>(value); }

std::vector<std::int16_t> Signed(std::span<const std::uint16_t> values) {
  return {values.begin(), values.end()};
}

}  // namespace

Result GetNvValue_Agc(CFileParser& project, std::span<std::uint16_t, 91> agcWords,
                      std::uint16_t& gainIndex, std::span<std::uint16_t, 4> rxBoundary,
                      std::uint32_t band) {
  CalibrationParameters& parameters = project.Calibration();
  parameters.LoadAgc(kBands[band]);
  Deliver(parameters.Cached(kBands[band], BandArray::AgcControlWord), agcWords);
  Deliver(parameters.CachedGainIndex(kBands[band]), gainIndex);
  Deliver(parameters.Cached(kBands[band], BandArray::RxBoundary), rxBoundary);
  return Result::Success;
}

Result SetNvValue_Agc(CFileParser& project, std::span<const std::uint16_t, 91> agcWords,
                      std::uint16_t gainIndex, std::span<const std::uint16_t, 5> rxCompensation,
                      std::uint32_t band) {
  CalibrationParameters& parameters = project.Calibration();
  parameters.Write(kBands[band], BandArray::AgcControlWord, Signed(agcWords));
  parameters.Write(kBands[band], BandArray::RxCompensation, Signed(rxCompensation));
  parameters.WriteGainIndex(kBands[band], gainIndex);
  return Result::Success;
}

Result GetNvValue_Apc(CFileParser& project, std::span<std::uint16_t, 16> rampUpStage0,
                      std::span<std::uint16_t, 16> rampUpStage1,
                      std::span<std::uint16_t, 16> rampDownStage0,
                      std::span<std::uint16_t, 16> rampDownStage1,
                      std::span<std::uint16_t, 4> txBoundary,
                      std::span<std::uint16_t, 80> stepFactor, std::uint32_t band) {
  CalibrationParameters& parameters = project.Calibration();
  const Band requested = kBands[band];
  parameters.LoadApc(requested);
  // Stations rely on the crossing of GSM.
  if (requested == Band::Gsm) std::swap(rampDownStage0, rampDownStage1);
  Deliver(parameters.Cached(requested, BandArray::RampUpStage0), rampUpStage0);
  Deliver(parameters.Cached(requested, BandArray::RampUpStage1), rampUpStage1);
  Deliver(parameters.Cached(requested, BandArray::RampDownStage0), rampDownStage0);
  Deliver(parameters.Cached(requested, BandArray::RampDownStage1), rampDownStage1);
  Deliver(parameters.Cached(requested, BandArray::TxBoundary), txBoundary);
  Deliver(parameters.Cached(requested, BandArray::StepFactor), stepFactor);
  return Result::Success;
}

Result SetNvValue_Apc(CFileParser& project, std::span<const std::uint16_t, 80> stepFactor,
                      std::uint32_t band) {
  project.Calibration().Write(kBands[band], BandArray::StepFactor, Signed(stepFactor));
  return Result::Success;
}

Result GetNvValue_Factor(CFileParser& project, std::span<std::uint16_t, 80> stepFactor,
                         std::uint32_t band) {
  constexpr std::array<std::optional<Band>, 5> kFactorBands = {Band::Gsm, Band::Dcs, std::nullopt,
                                                               Band::Pcs, Band::Gsm850};
  if (band >= kFactorBands.size() || !kFactorBands[band]) return Result::Success;
  project.Calibration().Load(*kFactorBands[band], BandArray::StepFactor);
  Deliver(project.Calibration().Cached(*kFactorBands[band], BandArray::StepFactor), stepFactor);
  return Result::Success;
}

Result GetNvValue_NvVersion(CFileParser& project, std::uint16_t& version) {
  project.Calibration().Load(CommonValue::CalParamVersion);
  Deliver(project.Calibration().Cached(CommonValue::CalParamVersion), version);
  return Result::Success;
}

Result GetNvValue_NvVersion_TD(CFileParser& project, std::uint16_t& version) {
  return GetNvValue_NvVersion(project, version);
}

Result GetNvValue_Adc_1(CFileParser& project, std::span<std::uint32_t, 2> adc,
                        std::span<std::uint32_t, 2> battery) {
  CalibrationParameters& parameters = project.Calibration();
  parameters.LoadAdcPoints();
  adc[0] = parameters.Cached(CommonValue::Adc0);
  adc[1] = parameters.Cached(CommonValue::Adc1);
  battery[0] = parameters.Cached(CommonValue::Battery0);
  battery[1] = parameters.Cached(CommonValue::Battery1);
  return Result::Success;
}

Result SetNvValue_Adc_1(CFileParser& project, std::span<const std::uint32_t, 2> adc,
                        std::span<const std::uint32_t, 2> battery) {
  CalibrationParameters& parameters = project.Calibration();
  parameters.Write(CommonValue::Adc0, adc[0]);
  parameters.Write(CommonValue::Adc1, adc[1]);
  parameters.Write(CommonValue::Battery0, battery[0]);
  parameters.Write(CommonValue::Battery1, battery[1]);
  return Result::Success;
}

Result GetNvValue_Adc_2(CFileParser& project, std::span<std::uint16_t, 16> voltageTable) {
  project.Calibration().LoadCharging();
  Deliver(project.Calibration().Cached(CommonArray::AdcVoltage), voltageTable);
  return Result::Success;
}

Result SetNvValue_Adc_2(CFileParser& project, std::span<const std::uint16_t, 16> voltageTable) {
  project.Calibration().Write(CommonArray::AdcVoltage, Signed(voltageTable));
  return Result::Success;
}

Result GetNvValue_Afc_1(CFileParser& project, std::uint16_t& center, std::uint16_t& slope) {
  CalibrationParameters& parameters = project.Calibration();
  parameters.Load(CommonValue::AfcCenter);
  parameters.Load(CommonValue::AfcSlope);
  Deliver(parameters.Cached(CommonValue::AfcCenter), center);
  Deliver(parameters.Cached(CommonValue::AfcSlope), slope);
  return Result::Success;
}

Result SetNvValue_Afc_1(CFileParser& project, std::uint16_t center, std::uint16_t slope) {
  project.Calibration().Write(CommonValue::AfcCenter, center);
  project.Calibration().Write(CommonValue::AfcSlope, slope);
  return Result::Success;
}

Result GetNvValue_Afc_2(CFileParser& project, std::uint16_t& slopeLength, std::uint16_t& cdac,
                        std::uint16_t& cafc, std::span<std::uint16_t, 16> afcRange,
                        std::span<std::uint16_t, 16> slopeValue,
                        std::span<std::uint16_t, 16> slopeReciprocal) {
  CalibrationParameters& parameters = project.Calibration();
  parameters.LoadAfcStructure();
  Deliver(parameters.Cached(CommonValue::SlopeLength), slopeLength);
  Deliver(parameters.Cached(CommonValue::Cdac), cdac);
  Deliver(parameters.Cached(CommonValue::Cafc), cafc);
  Deliver(parameters.Cached(CommonArray::AfcRange), afcRange);
  Deliver(parameters.Cached(CommonArray::SlopeValue), slopeValue);
  Deliver(parameters.Cached(CommonArray::SlopeReciprocal), slopeReciprocal);
  return Result::Success;
}

Result SetNvValue_Afc_2(CFileParser& project, std::uint16_t slopeLength, std::uint16_t cdac,
                        std::uint16_t cafc, std::span<const std::uint16_t, 16> afcRange,
                        std::span<const std::uint16_t, 16> slopeValue,
                        std::span<const std::uint16_t, 16> slopeReciprocal) {
  CalibrationParameters& parameters = project.Calibration();
  parameters.Write(CommonValue::SlopeLength, slopeLength);
  parameters.Write(CommonValue::Cdac, cdac);
  parameters.Write(CommonValue::Cafc, cafc);
  parameters.Write(CommonArray::AfcRange, Signed(afcRange));
  parameters.Write(CommonArray::SlopeValue, Signed(slopeValue));
  parameters.Write(CommonArray::SlopeReciprocal, Signed(slopeReciprocal));
  return Result::Success;
}

Result GetNvValue_DSP_Use_TD(CFileParser& project, std::span<std::uint16_t, 91> agcWords,
                             std::uint16_t& gainIndex, std::span<std::uint16_t, 80> stepFactor) {
  CalibrationParameters& parameters = project.Calibration();
  parameters.LoadTd();
  Deliver(parameters.Cached(Band::Td, BandArray::AgcControlWord), agcWords);
  Deliver(parameters.CachedGainIndex(Band::Td), gainIndex);
  Deliver(parameters.Cached(Band::Td, BandArray::StepFactor), stepFactor);
  return Result::Success;
}

Result SetNvValue_DSP_Use_TD(CFileParser& project, std::span<const std::uint16_t, 91> agcWords,
                             std::uint16_t gainIndex,
                             std::span<const std::uint16_t, 80> stepFactor) {
  CalibrationParameters& parameters = project.Calibration();
  parameters.Write(Band::Td, BandArray::AgcControlWord, Signed(agcWords));
  parameters.WriteGainIndex(Band::Td, gainIndex);
  parameters.Write(Band::Td, BandArray::StepFactor, Signed(stepFactor));
  return Result::Success;
}

Result GetNvValue_Multi_Ramp(CFileParser& project, const LogLine& log,
                             std::span<std::uint16_t, kRampPoints> points, std::uint32_t stage,
                             std::uint32_t band) {
  ItemArray ramp = RampStage(kBands[band], stage);
  std::array<std::int16_t, kRampPoints> values;
  ramp.Read(project.Items(), values);
  Deliver(values, points);
  for (const std::string& path : ramp.MissingPaths(project.Items())) {
    log("Get NV Item Value Error! Module = 0, Path = " + path);
  }
  return Result::Success;
}

Result SetNvValue_Multi_Ramp(CFileParser& project,
                             std::span<const std::uint16_t, kRampPoints> points,
                             std::uint32_t stage, std::uint32_t band) {
  RampStage(kBands[band], stage).Write(project.Items(), Signed(points));
  return Result::Success;
}

}  // namespace merovane::nvproject::body
