// WiFi, type 54.
#include <algorithm>
#include <array>
#include <functional>

#include "parts/memory/fixed_nv.h"
#include "parts/peripherals/peripherals.h"

namespace handset {
namespace {

constexpr std::uint8_t kWifiType = 54;
constexpr std::uint32_t kLastChannel = 13;
constexpr std::uint32_t kDefaultChannel = 6;
constexpr std::array<std::uint32_t, 20> kRates{1,  2,  5,  6,  7,  9,  11, 12, 13, 18,
                                               19, 24, 26, 36, 39, 48, 52, 54, 58, 65};
constexpr std::uint32_t kLastMode = 6;
constexpr std::uint32_t kLastPowerLevel = 5;
constexpr std::uint32_t kLastFactor = 5;
constexpr const char* kFactorItem = "wifi/factor";
constexpr const char* kCrystalItem = "wifi/crystal";

enum Status : std::uint32_t { kDone = 0, kNotTesting = 1, kBadValue = 2 };
enum Receiver : std::uint32_t { kReceiverOff = 0, kReceiverOn = 1, kClearCounts = 2 };

enum Subtype : std::uint8_t {
  kTestMode,
  kSaveAddress,
  kLoadAddress,
  kChannel,
  kRate,
  kMode,
  kPowerLevel,
  kTransmitter,
  kReceiver,
  kReadCounts,
  kReadFactor,
  kWriteFactor,
  kSetFactor,
  kCrystalCap,
};

// Every answer starts with a status: not 0 for a value out of range, and for whatever needs the
// radio while the test mode has not been entered.
class WifiPart final : public Part {
 public:
  explicit WifiPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "wifi"; }

  void Register(Registry& registry) override {
    On(registry, kTestMode, [this](const Frame& frame) {
      const std::uint32_t on = Word(frame);
      if (on > 1) return kBadValue;
      testing_ = on == 1;
      if (!testing_) transmitting_ = receiving_ = false;
      return kDone;
    });
    On(registry, kSaveAddress, [this](const Frame& frame) {
      if (frame.payload.size() != kWifiAddress.bytes) return kBadValue;
      WriteFixedNv(firmware_.Flash(), kWifiAddress, frame.payload);
      return kDone;
    });
    registry.On(kWifiType, kLoadAddress, [this](const Frame& frame) {
      Reply(frame, kDone, ReadFixedNv(firmware_.Flash(), kWifiAddress));
    });
    RegisterRadio(registry);
    RegisterFactors(registry);
  }

  void PowerOn() override {
    testing_ = transmitting_ = receiving_ = false;
    channel_ = kDefaultChannel;
    rate_ = mode_ = transmitParameter_ = good_ = bad_ = 0;
    powerLevel_ = 1;
    const Bytes* stored = firmware_.Flash().Find(kFactorItem);
    factor_ = stored != nullptr ? *stored : Bytes(8);
    factor_.resize(8);
  }

  void Describe(StatusMap& status) const override {
    status["test_mode"] = testing_ ? "on" : "off";
    status["channel"] = std::to_string(channel_);
    status["rate"] = std::to_string(rate_);
    status["modulation"] = std::to_string(mode_);
    status["power_level"] = std::to_string(powerLevel_);
    status["transmitter"] = transmitting_ ? "on" : "off";
    status["transmit_parameter"] = std::to_string(transmitParameter_);
    status["receiver"] = receiving_ ? "on" : "off";
    status["factor"] = ToHex(factor_);
    const Bytes* crystal = firmware_.Flash().Find(kCrystalItem);
    status["crystal"] = crystal != nullptr ? ToHex(*crystal) : "";
  }

 private:
  using Step = std::function<Status(const Frame&)>;

  void RegisterRadio(Registry& registry) {
    OnRadio(registry, kChannel,
            [this](const Frame& f) { return Take(Word(f), 1, kLastChannel, channel_); });
    OnRadio(registry, kRate, [this](const Frame& frame) {
      const std::uint32_t rate = Word(frame);
      if (std::find(kRates.begin(), kRates.end(), rate) == kRates.end()) return kBadValue;
      rate_ = rate;
      return kDone;
    });
    OnRadio(registry, kMode, [this](const Frame& f) { return Take(Word(f), 0, kLastMode, mode_); });
    OnRadio(registry, kPowerLevel,
            [this](const Frame& f) { return Take(Word(f), 1, kLastPowerLevel, powerLevel_); });
    OnRadio(registry, kTransmitter, [this](const Frame& frame) {
      // These two words do not follow the handset's order.
      const std::uint32_t on = Read32(frame.payload, 0, ByteOrder::Big);
      transmitParameter_ = Read32(frame.payload, 4, ByteOrder::Big);
      if (on > 1) return kBadValue;
      transmitting_ = on == 1;
      return kDone;
    });
    OnRadio(registry, kReceiver, [this](const Frame& frame) {
      const std::uint32_t action = Word(frame);
      if (action > kClearCounts) return kBadValue;
      if (action == kClearCounts) {
        good_ = bad_ = 0;
      } else {
        receiving_ = action == kReceiverOn;
      }
      return kDone;
    });
    registry.On(kWifiType, kReadCounts, [this](const Frame& frame) {
      if (testing_ && receiving_) {  // Packets have come since the last look.
        good_ += 90 + firmware_.Noise().Below(20);
        bad_ += firmware_.Noise().Below(3);
      }
      Bytes counts;
      Append32(counts, good_, firmware_.Order());
      Append32(counts, bad_, firmware_.Order());
      Reply(frame, testing_ ? kDone : kNotTesting, counts);
    });
    OnRadio(registry, kCrystalCap, [this](const Frame& frame) {
      if (frame.payload.size() != 2) return kBadValue;
      firmware_.Flash().Put(kCrystalItem, frame.payload);
      return kDone;
    });
  }

  void RegisterFactors(Registry& registry) {
    registry.On(kWifiType, kReadFactor, [this](const Frame& frame) {
      Bytes words;
      Append32(words, Read32(factor_, 0, ByteOrder::Big), firmware_.Order());
      Append32(words, Read32(factor_, 4, ByteOrder::Big), firmware_.Order());
      Reply(frame, kDone, words);
    });
    // Written ones are kept, set ones are in force until the next restart.
    for (Subtype subtype : {kWriteFactor, kSetFactor}) {
      On(registry, subtype, [this, subtype](const Frame& frame) {
        const std::uint32_t index = Read32(frame.payload, 4, ByteOrder::Big);
        if (frame.payload.size() != 12 || index < 1 || index > kLastFactor) return kBadValue;
        factor_.assign(frame.payload.begin() + 4, frame.payload.end());
        if (subtype == kWriteFactor) firmware_.Flash().Put(kFactorItem, factor_);
        return kDone;
      });
    }
  }

  void On(Registry& registry, Subtype subtype, Step step) {
    registry.On(kWifiType, subtype, [this, step = std::move(step)](const Frame& frame) {
      Reply(frame, step(frame), {});
    });
  }

  void OnRadio(Registry& registry, Subtype subtype, Step step) {
    On(registry, subtype, [this, step = std::move(step)](const Frame& frame) {
      return testing_ ? step(frame) : kNotTesting;
    });
  }

  void Reply(const Frame& frame, Status status, const Bytes& rest) {
    Bytes answer;
    Append32(answer, status, firmware_.Order());
    answer.insert(answer.end(), rest.begin(), rest.end());
    firmware_.Answer(frame, std::move(answer));
  }

  std::uint32_t Word(const Frame& frame) const {
    return Read32(frame.payload, 0, firmware_.Order());
  }

  static Status Take(std::uint32_t value, std::uint32_t first, std::uint32_t last,
                     std::uint32_t& place) {
    if (value < first || value > last) return kBadValue;
    place = value;
    return kDone;
  }

  Firmware& firmware_;
  bool testing_ = false;
  bool transmitting_ = false;
  bool receiving_ = false;
  std::uint32_t channel_ = 0;
  std::uint32_t rate_ = 0;
  std::uint32_t mode_ = 0;
  std::uint32_t powerLevel_ = 0;
  std::uint32_t transmitParameter_ = 0;
  std::uint32_t good_ = 0;
  std::uint32_t bad_ = 0;
  Bytes factor_;  // index and value, most significant byte first
};

}  // namespace

std::unique_ptr<Part> MakeWifiPart(Firmware& firmware) {
  return std::make_unique<WifiPart>(firmware);
}

}  // namespace handset
