// GPS, type 35.
#include <algorithm>

#include "parts/memory/fixed_nv.h"
#include "parts/peripherals/peripherals.h"

namespace handset {
namespace {

constexpr std::uint8_t kGpsType = 35;
constexpr std::size_t kBlockBytes = 264;
constexpr std::size_t kDataOffset = 8;
constexpr std::uint32_t kUnknownCommand = 0xFFFF'FFFF;
enum Command : std::uint32_t { kOpen = 0, kClose = 3, kWriteNv = 4, kReadNv = 5 };

class GpsPart final : public Part {
 public:
  explicit GpsPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "gps"; }

  void Register(Registry& registry) override {
    registry.On(kGpsType, 0, [this](const Frame& frame) { Carry(frame); });
  }

  void PowerOn() override { open_ = false; }

  void Describe(StatusMap& status) const override {
    status["receiver"] = open_ ? "open" : "closed";
  }

 private:
  void Carry(const Frame& frame) {
    if (frame.payload.size() != kBlockBytes) return firmware_.Refuse(frame);
    const std::uint32_t command = Read32(frame.payload, 0, firmware_.Order());
    const std::uint32_t length = Read32(frame.payload, 4, firmware_.Order());
    // The parameter block travels as it is kept.
    const auto data = std::span(frame.payload).subspan(kDataOffset, kGpsBlock.bytes);
    Bytes answer(kBlockBytes);
    bool known = true;
    if (command == kOpen || command == kClose) {
      open_ = command == kOpen;
    } else if (command == kWriteNv && length == kGpsBlock.bytes) {
      WriteFixedNv(firmware_.Flash(), kGpsBlock, data);
    } else if (command == kReadNv && length == kGpsBlock.bytes) {
      const Bytes stored = ReadFixedNv(firmware_.Flash(), kGpsBlock);
      std::copy(stored.begin(), stored.end(), answer.begin() + kDataOffset);
    } else {
      known = false;
    }
    Bytes head;
    Append32(head, known ? command : kUnknownCommand, firmware_.Order());
    Append32(head, length, firmware_.Order());
    std::copy(head.begin(), head.end(), answer.begin());
    firmware_.Answer(frame, std::move(answer));
  }

  Firmware& firmware_;
  bool open_ = false;
};

}  // namespace

std::unique_ptr<Part> MakeGpsPart(Firmware& firmware) {
  return std::make_unique<GpsPart>(firmware);
}

}  // namespace handset
