// Bluetooth, type 33.
#include <functional>

#include "parts/memory/fixed_nv.h"
#include "parts/peripherals/peripherals.h"

namespace handset {
namespace {

constexpr std::uint8_t kBluetoothType = 33;
constexpr std::uint32_t kLastChannel = 78;
constexpr std::uint32_t kLastDac = 63;
constexpr std::uint32_t kDefaultDac = 32;
constexpr const char* kDacItem = "bluetooth/dac";

enum Subtype : std::uint8_t {
  kEnterTest,
  kLeaveTest,
  kSaveAddress,
  kLoadAddress,
  kStartRadio,
  kStopRadio,
  kStartAfc,
  kSetDac,
  kStopAfc,
  kSaveDac,
  kLoadDac,
};

// Every answer has the subtype 0. A radio test outside the test mode, or with a value out of
// range, is refused.
class BluetoothPart final : public Part {
 public:
  explicit BluetoothPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "bluetooth"; }

  void Register(Registry& registry) override {
    const auto on = [&](Subtype subtype, std::function<bool(const Frame&)> carry) {
      registry.On(kBluetoothType, subtype, [this, carry = std::move(carry)](const Frame& frame) {
        if (carry(frame)) {
          firmware_.Answer(kBluetoothType, 0, {});
        } else {
          firmware_.Refuse(frame);
        }
      });
    };
    on(kEnterTest, [this](const Frame&) { return testing_ = true; });
    on(kLeaveTest, [this](const Frame&) {
      Stop();
      testing_ = false;
      return true;
    });
    on(kStartRadio, [this](const Frame& frame) {
      return frame.payload.size() == 16 && Start("radio test", Word(frame, 4));
    });
    on(kStartAfc, [this](const Frame& frame) { return Start("afc", Word(frame, 0)); });
    for (Subtype stop : {kStopRadio, kStopAfc}) {
      on(stop, [this](const Frame&) {
        Stop();
        return true;
      });
    }
    on(kSetDac, [this](const Frame& frame) {
      const std::uint32_t value = Word(frame, 0);
      if (!testing_ || value > kLastDac) return false;
      dac_ = value;
      return true;
    });
    on(kSaveDac, [this](const Frame& frame) {
      const std::uint32_t value = Word(frame, 0);
      if (value > kLastDac) return false;
      firmware_.Flash().Put(kDacItem, {static_cast<std::uint8_t>(value)});
      dac_ = value;
      return true;
    });
    on(kSaveAddress, [this](const Frame& frame) {
      if (frame.payload.size() != kBluetoothAddress.bytes) return false;
      WriteFixedNv(firmware_.Flash(), kBluetoothAddress, frame.payload);
      return true;
    });
    registry.On(kBluetoothType, kLoadAddress, [this](const Frame&) {
      firmware_.Answer(kBluetoothType, 0, ReadFixedNv(firmware_.Flash(), kBluetoothAddress));
    });
    registry.On(kBluetoothType, kLoadDac, [this](const Frame&) {
      Bytes answer;
      Append32(answer, StoredDac(), firmware_.Order());
      firmware_.Answer(kBluetoothType, 0, std::move(answer));
    });
  }

  void PowerOn() override {
    testing_ = false;
    Stop();
    dac_ = StoredDac();
  }

  void Describe(StatusMap& status) const override {
    status["test_mode"] = testing_ ? "on" : "off";
    status["activity"] = activity_;
    status["channel"] = std::to_string(channel_);
    status["dac"] = std::to_string(dac_);
  }

 private:
  std::uint32_t Word(const Frame& frame, std::size_t offset) const {
    return Read32(frame.payload, offset, firmware_.Order());
  }

  bool Start(const char* activity, std::uint32_t channel) {
    if (!testing_ || channel > kLastChannel) return false;
    activity_ = activity;
    channel_ = channel;
    return true;
  }

  void Stop() { activity_ = "none"; }

  std::uint32_t StoredDac() const {
    const Bytes* stored = firmware_.Flash().Find(kDacItem);
    return stored != nullptr && !stored->empty() ? stored->front() : kDefaultDac;
  }

  Firmware& firmware_;
  bool testing_ = false;
  std::string activity_ = "none";
  std::uint32_t channel_ = 0;
  std::uint32_t dac_ = 0;
};

}  // namespace

std::unique_ptr<Part> MakeBluetoothPart(Firmware& firmware) {
  return std::make_unique<BluetoothPart>(firmware);
}

}  // namespace handset
