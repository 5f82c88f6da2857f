// Start-up, modes, restarts and deep sleep.
#include <utility>

#include "parts/session/session.h"

namespace handset {
namespace {

constexpr std::uint8_t kStartType = 0xFE;
constexpr std::uint8_t kStartFrameSubtype = 1;
constexpr std::uint8_t kStartModeBase = 128;
constexpr std::uint8_t kModeChangeType = 12;
constexpr std::uint8_t kRestartMode = 0;
constexpr std::uint8_t kModeReadType = 28;
constexpr std::uint8_t kPeripheralType = 17;
constexpr std::uint8_t kDeepSleepSubtype = 2;

class ModePart final : public Part {
 public:
  explicit ModePart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "session"; }

  void Register(Registry& registry) override {
    registry.AllowWhileBooting(kStartType);
    registry.OnType(kStartType, [this](const Frame& frame) {
      NoteCampWord(frame);
      firmware_.Answer(frame);
      const auto mode = static_cast<std::uint8_t>(frame.subtype - kStartModeBase);
      const bool booting = firmware_.PowerState() == Power::Booting;
      if (booting && firmware_.Options().portVanishesAtStart) {
        firmware_.Restart(mode, true);
      } else {
        firmware_.EnterMode(mode);
      }
    });
    registry.OnType(kModeChangeType, [this](const Frame& frame) { ChangeMode(frame); });
    for (std::uint8_t subtype : {std::uint8_t{0}, std::uint8_t{1}}) {
      registry.On(kModeReadType, subtype, [this](const Frame& frame) {
        // One word, most significant byte first whatever the handset's own order.
        firmware_.Answer(frame, {0, 0, 0, firmware_.Mode()});
      });
    }
    registry.On(kPeripheralType, kDeepSleepSubtype, [this](const Frame&) { firmware_.Sleep(); });
  }

  void PowerOn() override {
    ++boots_;
    campWord_ = 0;
    SendStartFrame();
  }

  void Describe(StatusMap& status) const override {
    status["boots"] = std::to_string(boots_);
    status["camp_word"] = std::to_string(campWord_);
  }

 private:
  void SendStartFrame() {
    firmware_.After(firmware_.Options().startFrameInterval, [this] {
      if (firmware_.PowerState() != Power::Booting) return;
      firmware_.Report(kStartType, kStartFrameSubtype, {});
      SendStartFrame();
    });
  }

  void ChangeMode(const Frame& frame) {
    NoteCampWord(frame);
    // Two bytes or more tell a station on USB that the port stays.
    const bool stays = !firmware_.Options().portVanishes;
    firmware_.Answer(frame, stays ? Bytes{0, 0} : Bytes{});
    if (frame.subtype == kRestartMode) {
      firmware_.Restart(firmware_.Options().startMode, !stays);
    } else if (stays) {
      firmware_.EnterMode(frame.subtype);
    } else {
      firmware_.Restart(frame.subtype, true);
    }
  }

  // The camp parameters travel where other frames have their sequence number.
  void NoteCampWord(const Frame& frame) {
    if (frame.sequence != 0) campWord_ = frame.sequence;
  }

  Firmware& firmware_;
  unsigned boots_ = 0;
  std::uint32_t campWord_ = 0;
};

}  // namespace

std::unique_ptr<Part> MakeModePart(Firmware& firmware) {
  return std::make_unique<ModePart>(firmware);
}

}  // namespace handset
