// Production flash items and NV items, type 13.
#include <algorithm>
#include <string>

#include "parts/memory/fixed_nv.h"
#include "parts/memory/memory.h"

namespace handset {
namespace {

constexpr std::uint8_t kItemType = 13;
constexpr std::uint8_t kNvRead = 0;  // also the subtype of every answer
constexpr std::uint8_t kNvWrite = 1;
constexpr std::uint8_t kFlashRead = 2;
constexpr std::uint8_t kFlashWrite = 3;
constexpr std::uint8_t kFlashErase = 4;
constexpr std::uint8_t kCheck = 7;
constexpr std::size_t kFlashHeaderBytes = 4;
constexpr std::size_t kLargestItemBytes = 8192;
constexpr std::size_t kMagicBytes = 4;
constexpr std::uint16_t kImeiItem = 5;

std::string FlashName(std::uint16_t id) { return "flash/" + std::to_string(id); }
std::string NvName(std::uint16_t id) { return "nv/" + std::to_string(id); }

class ItemsPart final : public Part {
 public:
  explicit ItemsPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "items"; }

  void Register(Registry& registry) override {
    registry.On(kItemType, kNvRead, [this](const Frame& frame) { ReadNv(frame); });
    registry.On(kItemType, kNvWrite, [this](const Frame& frame) { WriteNv(frame); });
    registry.On(kItemType, kFlashRead, [this](const Frame& frame) { ReadFlash(frame); });
    registry.On(kItemType, kFlashWrite, [this](const Frame& frame) { WriteFlash(frame); });
    registry.On(kItemType, kFlashErase, [this](const Frame&) {
      firmware_.Flash().EraseAll("flash/");
      firmware_.Answer(kItemType, 0, {});
    });
    registry.On(kItemType, kCheck, [this](const Frame&) {
      firmware_.Answer(kItemType, 0, {0, 0});
    });
  }

  void WriteFactoryData(Storage& flash) override {
    flash.Put(NvName(1), {0x10, 0x20, 0x30, 0x40});
    flash.Put(NvName(100), ToBytes("factory"));
  }

 private:
  // An item never written reads as no bytes after its number.
  void ReadNv(const Frame& frame) {
    const std::uint16_t id = Read16(frame.payload, 0, firmware_.Order());
    Bytes answer;
    Append16(answer, id, firmware_.Order());
    Bytes content;
    if (id == kImeiItem) {
      content = ReadFixedNv(firmware_.Flash(), kImei1);
    } else if (const Bytes* item = firmware_.Flash().Find(NvName(id))) {
      content = *item;
    }
    answer.insert(answer.end(), content.begin(), content.end());
    firmware_.Answer(kItemType, 0, std::move(answer));
  }

  void WriteNv(const Frame& frame) {
    const std::uint16_t id = Read16(frame.payload, 0, firmware_.Order());
    Bytes content(frame.payload.begin() + 2, frame.payload.end());
    if (id == kImeiItem) {
      if (content.size() != kImei1.bytes) return firmware_.Refuse(frame);
      WriteFixedNv(firmware_.Flash(), kImei1, content);
    } else {
      firmware_.Flash().Put(NvName(id), std::move(content));
    }
    Bytes answer;
    Append16(answer, id, firmware_.Order());
    firmware_.Answer(kItemType, 0, std::move(answer));
  }

  // What was never written reads as zeros.
  void ReadFlash(const Frame& frame) {
    const std::uint16_t id = Read16(frame.payload, 0, firmware_.Order());
    const std::uint16_t length = Read16(frame.payload, 2, firmware_.Order());
    if (length > kLargestItemBytes) return firmware_.Refuse(frame);
    Bytes content = FlashContent(id);
    content.resize(length);
    Bytes answer(frame.payload.begin(), frame.payload.begin() + kFlashHeaderBytes);
    answer.insert(answer.end(), content.begin(), content.end());
    firmware_.Answer(kItemType, 0, std::move(answer));
  }

  // A shorter write leaves the rest of the item as it was.
  void WriteFlash(const Frame& frame) {
    const std::uint16_t id = Read16(frame.payload, 0, firmware_.Order());
    const std::uint16_t length = Read16(frame.payload, 2, firmware_.Order());
    if (length == 0 || length > kLargestItemBytes ||
        frame.payload.size() != kFlashHeaderBytes + length) {
      return firmware_.Refuse(frame);
    }
    const Bytes* stored = firmware_.Flash().Find(FlashName(id));
    Bytes content = stored != nullptr ? *stored : Bytes();
    content.resize(std::max<std::size_t>(content.size(), length));
    std::copy(frame.payload.begin() + kFlashHeaderBytes, frame.payload.end(), content.begin());
    firmware_.Flash().Put(FlashName(id), std::move(content));
    firmware_.Answer(kItemType, 0,
                     Bytes(frame.payload.begin(), frame.payload.begin() + kFlashHeaderBytes));
  }

  Bytes FlashContent(std::uint16_t id) const {
    const Bytes* stored = firmware_.Flash().Find(FlashName(id));
    Bytes content = stored != nullptr ? *stored : Bytes();
    const Bytes* production = firmware_.Flash().Find(kProductionItem);
    if (id != 0 || production == nullptr || production->size() < kMagicBytes) return content;
    content.resize(std::max(content.size(), kMagicBytes));
    if (std::all_of(content.begin(), content.begin() + kMagicBytes,
                    [](std::uint8_t byte) { return byte == 0; })) {
      std::copy_n(production->begin(), kMagicBytes, content.begin());
    }
    return content;
  }

  Firmware& firmware_;
};

}  // namespace

std::unique_ptr<Part> MakeItemsPart(Firmware& firmware) {
  return std::make_unique<ItemsPart>(firmware);
}

}  // namespace handset
