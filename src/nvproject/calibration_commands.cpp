// The typed commands: arguments and bands in, cached parameters out.
#include <array>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

#include "nvproject/commands.h"

namespace merovane::nvproject {
namespace {

constexpr std::array kBands = {Band::Gsm, Band::Gsm850, Band::Dcs, Band::Pcs};

template <class... Pointers>
bool AnyNull(const Pointers*... pointers) {
  return ((pointers == nullptr) || ...);
}

// The check that the AGC and APC commands share.
Result Check(const CFileParser* project, bool argumentMissing, std::uint32_t band = 0) {
  if (argumentMissing || band >= kBands.size()) return Result::InvalidParam;
  return project == nullptr ? Result::NvProjectNotOpen : Result::Success;
}

// Callers have the same bits as unsigned values.
void Deliver(std::span<const std::int16_t> values, std::uint16_t* out) {
  std::memcpy(out, values.data(), values.size_bytes());
}

void Deliver(std::uint32_t value, std::uint16_t* out) { *out = static_cast<std::uint16_t>(value); }

// As many values as the parameter has.
std::vector<std::int16_t> Take(const std::uint16_t* in, std::size_t count) {
  std::vector<std::int16_t> values(count);
  std::memcpy(values.data(), in, count * sizeof(std::int16_t));
  return values;
}

void Write(CalibrationParameters& parameters, Band band, BandArray array, const std::uint16_t* in) {
  parameters.Write(band, array, Take(in, CountOf(array)));
}

void Write(CalibrationParameters& parameters, CommonArray array, const std::uint16_t* in) {
  parameters.Write(array, Take(in, CountOf(array)));
}

}  // namespace

Result GetNvValueAgc(CFileParser* project, std::uint16_t* agcWords, std::uint16_t* gainIndex,
                     std::uint16_t* rxBoundary, std::uint32_t band) {
  const Result check = Check(project, AnyNull(agcWords, gainIndex, rxBoundary), band);
  if (!Succeeded(check)) return check;
  CalibrationParameters& parameters = project->Calibration();
  parameters.LoadAgc(kBands[band]);
  Deliver(parameters.Cached(kBands[band], BandArray::AgcControlWord), agcWords);
  Deliver(parameters.CachedGainIndex(kBands[band]), gainIndex);
  Deliver(parameters.Cached(kBands[band], BandArray::RxBoundary), rxBoundary);
  return Result::Success;
}

Result SetNvValueAgc(CFileParser* project, const std::uint16_t* agcWords, std::uint16_t gainIndex,
                     const std::uint16_t* rxCompensation, std::uint32_t band) {
  const Result check = Check(project, AnyNull(agcWords, rxCompensation), band);
  if (!Succeeded(check)) return check;
  CalibrationParameters& parameters = project->Calibration();
  Write(parameters, kBands[band], BandArray::AgcControlWord, agcWords);
  Write(parameters, kBands[band], BandArray::RxCompensation, rxCompensation);
  parameters.WriteGainIndex(kBands[band], gainIndex);
  return Result::Success;
}

Result GetNvValueApc(CFileParser* project, std::uint16_t* rampUpStage0, std::uint16_t* rampUpStage1,
                     std::uint16_t* rampDownStage0, std::uint16_t* rampDownStage1,
                     std::uint16_t* txBoundary, std::uint16_t* stepFactor, std::uint32_t band) {
  const Result check = Check(
      project,
      AnyNull(rampUpStage0, rampUpStage1, rampDownStage0, rampDownStage1, txBoundary, stepFactor),
      band);
  if (!Succeeded(check)) return check;
  CalibrationParameters& parameters = project->Calibration();
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

Result SetNvValueApc(CFileParser* project, const std::uint16_t* stepFactor, std::uint32_t band) {
  const Result check = Check(project, AnyNull(stepFactor), band);
  if (!Succeeded(check)) return check;
  Write(project->Calibration(), kBands[band], BandArray::StepFactor, stepFactor);
  return Result::Success;
}

Result GetNvValueFactor(CFileParser* project, std::uint16_t* stepFactor, std::uint32_t band) {
  constexpr std::array<std::optional<Band>, 5> kFactorBands = {Band::Gsm, Band::Dcs, std::nullopt,
                                                               Band::Pcs, Band::Gsm850};
  if (project == nullptr) return Result::NvProjectNotOpen;
  if (stepFactor == nullptr) return Result::InvalidParam;
  if (band >= kFactorBands.size() || !kFactorBands[band]) return Result::Success;
  project->Calibration().Load(*kFactorBands[band], BandArray::StepFactor);
  Deliver(project->Calibration().Cached(*kFactorBands[band], BandArray::StepFactor), stepFactor);
  return Result::Success;
}

Result GetNvValueNvVersion(CFileParser* project, std::uint16_t* version) {
  const Result check = Check(project, AnyNull(version));
  if (!Succeeded(check)) return check;
  project->Calibration().Load(CommonValue::CalParamVersion);
  Deliver(project->Calibration().Cached(CommonValue::CalParamVersion), version);
  return Result::Success;
}

Result GetNvValueNvVersionTd(CFileParser* project, std::uint16_t* version) {
  return GetNvValueNvVersion(project, version);
}

Result GetNvValueAdc1(CFileParser* project, std::uint32_t* adc, std::uint32_t* battery) {
  const Result check = Check(project, AnyNull(adc, battery));
  if (!Succeeded(check)) return check;
  CalibrationParameters& parameters = project->Calibration();
  parameters.LoadAdcPoints();
  adc[0] = parameters.Cached(CommonValue::Adc0);
  adc[1] = parameters.Cached(CommonValue::Adc1);
  battery[0] = parameters.Cached(CommonValue::Battery0);
  battery[1] = parameters.Cached(CommonValue::Battery1);
  return Result::Success;
}

Result SetNvValueAdc1(CFileParser* project, const std::uint32_t* adc,
                      const std::uint32_t* battery) {
  const Result check = Check(project, AnyNull(adc, battery));
  if (!Succeeded(check)) return check;
  CalibrationParameters& parameters = project->Calibration();
  parameters.Write(CommonValue::Adc0, adc[0]);
  parameters.Write(CommonValue::Adc1, adc[1]);
  parameters.Write(CommonValue::Battery0, battery[0]);
  parameters.Write(CommonValue::Battery1, battery[1]);
  return Result::Success;
}

Result GetNvValueAdc2(CFileParser* project, std::uint16_t* voltageTable) {
  const Result check = Check(project, AnyNull(voltageTable));
  if (!Succeeded(check)) return check;
  project->Calibration().LoadCharging();
  Deliver(project->Calibration().Cached(CommonArray::AdcVoltage), voltageTable);
  return Result::Success;
}

Result SetNvValueAdc2(CFileParser* project, const std::uint16_t* voltageTable) {
  const Result check = Check(project, AnyNull(voltageTable));
  if (!Succeeded(check)) return check;
  Write(project->Calibration(), CommonArray::AdcVoltage, voltageTable);
  return Result::Success;
}

Result GetNvValueAfc1(CFileParser* project, std::uint16_t* center, std::uint16_t* slope) {
  const Result check = Check(project, AnyNull(center, slope));
  if (!Succeeded(check)) return check;
  CalibrationParameters& parameters = project->Calibration();
  parameters.Load(CommonValue::AfcCenter);
  parameters.Load(CommonValue::AfcSlope);
  Deliver(parameters.Cached(CommonValue::AfcCenter), center);
  Deliver(parameters.Cached(CommonValue::AfcSlope), slope);
  return Result::Success;
}

Result SetNvValueAfc1(CFileParser* project, std::uint16_t center, std::uint16_t slope) {
  if (project == nullptr) return Result::NvProjectNotOpen;
  project->Calibration().Write(CommonValue::AfcCenter, center);
  project->Calibration().Write(CommonValue::AfcSlope, slope);
  return Result::Success;
}

Result GetNvValueAfc2(CFileParser* project, std::uint16_t* slopeLength, std::uint16_t* cdac,
                      std::uint16_t* cafc, std::uint16_t* afcRange, std::uint16_t* slopeValue,
                      std::uint16_t* slopeReciprocal) {
  const Result check =
      Check(project, AnyNull(slopeLength, cdac, cafc, afcRange, slopeValue, slopeReciprocal));
  if (!Succeeded(check)) return check;
  CalibrationParameters& parameters = project->Calibration();
  parameters.LoadAfcStructure();
  Deliver(parameters.Cached(CommonValue::SlopeLength), slopeLength);
  Deliver(parameters.Cached(CommonValue::Cdac), cdac);
  Deliver(parameters.Cached(CommonValue::Cafc), cafc);
  Deliver(parameters.Cached(CommonArray::AfcRange), afcRange);
  Deliver(parameters.Cached(CommonArray::SlopeValue), slopeValue);
  Deliver(parameters.Cached(CommonArray::SlopeReciprocal), slopeReciprocal);
  return Result::Success;
}

Result SetNvValueAfc2(CFileParser* project, std::uint16_t slopeLength, std::uint16_t cdac,
                      std::uint16_t cafc, const std::uint16_t* afcRange,
                      const std::uint16_t* slopeValue, const std::uint16_t* slopeReciprocal) {
  const Result check = Check(project, AnyNull(afcRange, slopeValue, slopeReciprocal));
  if (!Succeeded(check)) return check;
  CalibrationParameters& parameters = project->Calibration();
  parameters.Write(CommonValue::SlopeLength, slopeLength);
  parameters.Write(CommonValue::Cdac, cdac);
  parameters.Write(CommonValue::Cafc, cafc);
  Write(parameters, CommonArray::AfcRange, afcRange);
  Write(parameters, CommonArray::SlopeValue, slopeValue);
  Write(parameters, CommonArray::SlopeReciprocal, slopeReciprocal);
  return Result::Success;
}

}  // namespace merovane::nvproject
