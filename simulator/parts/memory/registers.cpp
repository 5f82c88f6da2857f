// Memory-mapped registers, type 11.
#include "parts/memory/memory.h"
#include "parts/memory/memory_map.h"

namespace handset {
namespace {

constexpr std::uint8_t kRegisterType = 11;
constexpr std::uint16_t kRead = 0xA003;
constexpr std::uint16_t kWrite = 0xA004;
constexpr std::size_t kHeaderBytes = 16;
constexpr std::uint32_t kLargestTransferBytes = 9000;

std::uint32_t WidthBytes(std::uint32_t code) { return code == 0 ? 1 : code == 1 ? 2 : 4; }

class RegistersPart final : public Part {
 public:
  explicit RegistersPart(Firmware& firmware)
      : firmware_(firmware),
        memory_({{0x0000'0000, 0x4000, false},
                 {0x2000'0000, 0x1'0000, true},
                 {0x8000'0000, 0x1000, true}}) {}

  std::string Name() const override { return "registers"; }

  void Register(Registry& registry) override {
    registry.On(kRegisterType, 0, [this](const Frame& frame) { Access(frame); });
  }

  void PowerOn() override { memory_.Reset(); }

 private:
  void Access(const Frame& frame) {
    const ByteOrder order = firmware_.Order();
    const std::uint16_t operation = Read16(frame.payload, 0, order);
    const std::uint16_t total = Read16(frame.payload, 2, order);
    const std::uint32_t width = WidthBytes(Read32(frame.payload, 4, order));
    const std::uint32_t address = Read32(frame.payload, 8, order);
    const std::uint32_t count = Read32(frame.payload, 12, order);
    if (total != frame.payload.size() || count > kLargestTransferBytes / width) {
      return firmware_.Refuse(frame);
    }
    if (operation == kRead && total == kHeaderBytes) {
      if (auto bytes = memory_.Read(address, width, count)) return AnswerWith(frame, *bytes);
    } else if (operation == kWrite && total == kHeaderBytes + std::size_t{count} * width) {
      if (memory_.Write(address, width, std::span(frame.payload).subspan(kHeaderBytes))) {
        return AnswerWith(frame, {});
      }
    }
    firmware_.Refuse(frame);
  }

  // The request's header with the answer's own length, and what was read.
  void AnswerWith(const Frame& request, const Bytes& bytes) {
    Bytes answer(request.payload.begin(), request.payload.begin() + 2);
    Append16(answer, static_cast<std::uint16_t>(kHeaderBytes + bytes.size()), firmware_.Order());
    answer.insert(answer.end(), request.payload.begin() + 4,
                  request.payload.begin() + kHeaderBytes);
    answer.insert(answer.end(), bytes.begin(), bytes.end());
    firmware_.Answer(request, std::move(answer));
  }

  Firmware& firmware_;
  MemoryMap memory_;
};

}  // namespace

std::unique_ptr<Part> MakeRegistersPart(Firmware& firmware) {
  return std::make_unique<RegistersPart>(firmware);
}

}  // namespace handset
