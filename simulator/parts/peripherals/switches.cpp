// LED, vibrator, LCD, key light and camera, type 17.
#include <array>
#include <map>

#include "parts/peripherals/peripherals.h"

namespace handset {
namespace {

constexpr std::uint8_t kPeripheralType = 17;

struct Switch {
  std::uint8_t subtype;
  const char* peripheral;
  bool on;
};

// LED and LCD go on together, LED and vibrator go off together.
constexpr std::array<Switch, 10> kSwitches{{
    {0, "led", false},
    {0, "vibrator", false},
    {3, "led", true},
    {3, "lcd", true},
    {4, "vibrator", true},
    {8, "lcd", false},
    {16, "key_light", true},
    {17, "key_light", false},
    {18, "camera", true},
    {19, "camera", false},
}};

class SwitchesPart final : public Part {
 public:
  explicit SwitchesPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "peripherals"; }

  void Register(Registry& registry) override {
    for (const Switch& each : kSwitches) {
      registry.On(kPeripheralType, each.subtype, [this, each](const Frame&) {
        on_[each.peripheral] = each.on;
        firmware_.Note(std::string("   ") + each.peripheral + (each.on ? " on" : " off"));
      });
    }
  }

  void PowerOn() override {
    for (const Switch& each : kSwitches) on_[each.peripheral] = false;
  }

  void Describe(StatusMap& status) const override {
    for (const auto& [peripheral, on] : on_) status[peripheral] = on ? "on" : "off";
  }

 private:
  Firmware& firmware_;
  std::map<std::string, bool> on_;
};

}  // namespace

std::unique_ptr<Part> MakeSwitchesPart(Firmware& firmware) {
  return std::make_unique<SwitchesPart>(firmware);
}

}  // namespace handset
