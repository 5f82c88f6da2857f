// The software version string, type 0.
#include "parts/session/session.h"

namespace handset {
namespace {

constexpr std::uint8_t kVersionType = 0;
constexpr const char* kVersion = "MEROVANE-SIM 1.0 Nov 20 2026 10:15:00";

class VersionPart final : public Part {
 public:
  explicit VersionPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "version"; }

  void Register(Registry& registry) override {
    registry.On(kVersionType, 0,
                [this](const Frame& frame) { firmware_.Answer(frame, ToBytes(kVersion)); });
  }

  void Describe(StatusMap& status) const override { status["text"] = kVersion; }

 private:
  Firmware& firmware_;
};

}  // namespace

std::unique_ptr<Part> MakeVersionPart(Firmware& firmware) {
  return std::make_unique<VersionPart>(firmware);
}

}  // namespace handset
