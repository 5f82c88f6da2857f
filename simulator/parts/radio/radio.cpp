#include "parts/radio/radio.h"

#include <array>

#include "parts/radio/calibration_data.h"
#include "parts/radio/constants.h"
#include "parts/radio/front_end.h"
#include "parts/radio/instrument.h"
#include "parts/radio/items.h"
#include "parts/radio/layer1.h"
#include "parts/radio/td_parameters.h"

namespace handset {
namespace {

constexpr std::uint8_t kPeripheralType = 17;

class RadioPart final : public Part {
 public:
  explicit RadioPart(Firmware& firmware)
      : firmware_(firmware),
        constants_(firmware.Options().seed),
        items_(firmware),
        frontEnd_(firmware, constants_, items_),
        layer1_(firmware, frontEnd_),
        data_(firmware, items_, frontEnd_, layer1_),
        tdParameters_(firmware),
        instrument_(frontEnd_, constants_) {}

  std::string Name() const override { return "radio"; }

  void Register(Registry& registry) override {
    layer1_.Register(registry);
    data_.Register(registry);
    tdParameters_.Register(registry);
    // Both highest powers are left through the same subtype.
    for (const auto& [subtype, power] : kPowerStates) {
      registry.On(kPeripheralType, subtype,
                  [this, power = power](const Frame&) { power_ = power; });
    }
    registry.OnAt("AT+SIM",
                  [this](const std::string& command) { return instrument_.Ask(command); });
  }

  void WriteFactoryData(Storage& flash) override {
    CalibrationItems::WriteNominal(flash, firmware_.Order(), constants_);
  }

  void PowerOn() override {
    items_.LoadRam();
    layer1_.PowerOn();
    frontEnd_.PowerOn();
    power_ = "normal";
  }

  void Describe(StatusMap& status) const override {
    layer1_.Describe(status);
    status["band"] = std::to_string(frontEnd_.Band());
    status["transmitter"] = frontEnd_.Transmits() ? "on" : "off";
    status["receiver"] = frontEnd_.Receives() ? "on" : "off";
    status["power"] = power_;
  }

 private:
  static constexpr std::array<std::pair<std::uint8_t, const char*>, 3> kPowerStates{
      {{0, "normal"}, {5, "highest receive"}, {6, "highest transmit"}}};

  Firmware& firmware_;
  RadioConstants constants_;
  CalibrationItems items_;
  FrontEnd frontEnd_;
  Layer1 layer1_;
  CalibrationData data_;
  TdParameters tdParameters_;
  Instrument instrument_;
  const char* power_ = "normal";
};

}  // namespace

std::unique_ptr<Part> MakeRadioPart(Firmware& firmware) {
  return std::make_unique<RadioPart>(firmware);
}

}  // namespace handset
