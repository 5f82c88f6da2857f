// Chip, LCD and flash identification, type 93, and the 7310K exchange, type 37.
#include <algorithm>

#include "parts/memory/memory.h"

namespace handset {
namespace {

constexpr std::uint8_t kIdentificationType = 93;
constexpr std::uint32_t kChipId = 0x51A0'0307;
constexpr std::uint32_t kChipType = 0x0000'0012;
constexpr std::uint8_t kExchangeType = 37;
constexpr std::size_t kExchangeWords = 10;
constexpr std::size_t kFlashDescriptionBytes = 384;

class IdentificationPart final : public Part {
 public:
  explicit IdentificationPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "identification"; }

  void Register(Registry& registry) override {
    const auto words = [&](std::uint8_t subtype, std::initializer_list<std::uint32_t> values,
                           std::size_t bytes = 0) {
      Bytes payload;
      for (std::uint32_t value : values) Append32(payload, value, firmware_.Order());
      payload.resize(std::max(payload.size(), bytes));
      Fixed(registry, subtype, payload);
    };
    words(0, {kChipId});
    words(1, {kChipType});
    Fixed(registry, 2, {'L', 'C', 'D', 0x01, 0x28, 0x40});
    Fixed(registry, 3, {'L', 'C', 'D', 0x02});
    // Two identifier words, and two regions: start, sector bytes, sector count.
    words(4, {0x0098'00F1, 0x0000'1015, 2, 0, 0x2'0000, 60, 0x78'0000, 0x8000, 16},
          kFlashDescriptionBytes);
    registry.OnType(kExchangeType, [this](const Frame& frame) { Exchange(frame); });
  }

  void Describe(StatusMap& status) const override {
    status["exchanges"] = std::to_string(exchanges_);
  }

 private:
  void Fixed(Registry& registry, std::uint8_t subtype, const Bytes& payload) {
    registry.On(kIdentificationType, subtype,
                [this, payload](const Frame& frame) { firmware_.Answer(frame, payload); });
  }

  // Each word comes back one higher, which shows a wrong byte order.
  void Exchange(const Frame& frame) {
    Bytes answer;
    for (std::size_t i = 0; i < kExchangeWords; ++i) {
      const auto word =
          static_cast<std::uint16_t>(Read16(frame.payload, 2 * i, firmware_.Order()) + 1);
      Append16(answer, word, firmware_.Order());
    }
    ++exchanges_;
    firmware_.Answer(frame, std::move(answer));
  }

  Firmware& firmware_;
  unsigned exchanges_ = 0;
};

}  // namespace

std::unique_ptr<Part> MakeIdentificationPart(Firmware& firmware) {
  return std::make_unique<IdentificationPart>(firmware);
}

}  // namespace handset
