#include "parts/identity/identity.h"

#include <algorithm>
#include <string>

#include "parts/memory/crc16.h"
#include "parts/memory/fixed_nv.h"
#include "parts/memory/memory.h"

namespace handset {
namespace {

constexpr std::uint8_t kProductionType = 95;
constexpr std::uint8_t kVersionType = 96;
constexpr std::uint8_t kImeiCountType = 97;
constexpr std::uint8_t kWriteSubtype = 1;  // also the subtype of every answer
constexpr std::uint8_t kReadSubtype = 0x81;
constexpr std::uint8_t kCountSubtype = 0x80;
constexpr std::size_t kProductionBytes = 256;
constexpr const char* kFlashItem = "flash/0";
constexpr std::size_t kFlashItemBytes = 1752;
constexpr std::size_t kGuidOffset = 152;

struct Layout {
  const char* name;
  const char* item;
  const char* magic;  // as it stands in storage
  std::size_t serial;
  std::size_t secondSerial;
};
constexpr Layout kFlashLayout{"flash", kFlashItem, "50VQ", 8, 168};
constexpr Layout kProductionLayout{"production", kProductionItem, "90VQ", 4, 28};

void Place(Bytes& bytes, std::size_t offset, std::string_view text) {
  std::copy(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
}

bool HasMagic(const Bytes* item, const Layout& layout) {
  return item != nullptr && item->size() >= 4 &&
         std::equal(item->begin(), item->begin() + 4, layout.magic);
}

std::string Text(const Bytes& item, std::size_t offset) {
  std::string text;
  for (std::size_t i = offset; i < std::min(item.size(), offset + kSerialNumberBytes); ++i) {
    if (item[i] == 0) break;
    text += static_cast<char>(item[i]);
  }
  return text;
}

class IdentityPart final : public Part {
 public:
  explicit IdentityPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "identity"; }

  void Register(Registry& registry) override {
    registry.On(kProductionType, kWriteSubtype,
                [this](const Frame& frame) { WriteProduction(frame); });
    registry.On(kProductionType, kReadSubtype, [this](const Frame&) {
      const Bytes* stored = firmware_.Flash().Find(kProductionItem);
      AnswerWithChecksum(kProductionType, stored != nullptr ? *stored : Bytes(kProductionBytes));
    });
    registry.On(kVersionType, kReadSubtype, [this](const Frame&) {
      Bytes block(64);
      Place(block, 0, "SIM-BB-1.0");
      Place(block, 32, "2026-11-20 10:15");
      AnswerWithChecksum(kVersionType, std::move(block));
    });
    registry.On(kImeiCountType, kCountSubtype, [this](const Frame&) {
      // This one word is least significant byte first in either order.
      Bytes block;
      Append32(block, ImeiCount(), ByteOrder::Little);
      Append32(block, 0, ByteOrder::Little);
      AnswerWithChecksum(kImeiCountType, std::move(block));
    });
  }

  void WriteFactoryData(Storage& flash) override {
    const bool inFlash = firmware_.Options().serialLayout == SerialLayout::Flash;
    const Layout& layout = inFlash ? kFlashLayout : kProductionLayout;
    Bytes item(inFlash ? kFlashItemBytes : kProductionBytes);
    Place(item, 0, layout.magic);
    const std::vector<std::string>& numbers = firmware_.Options().serialNumbers;
    if (!numbers.empty()) Place(item, layout.serial, numbers[0]);
    if (numbers.size() > 1) Place(item, layout.secondSerial, numbers[1]);
    if (inFlash) Place(item, kGuidOffset, "simulated-guid-1");
    flash.Put(layout.item, std::move(item));
  }

  void Describe(StatusMap& status) const override {
    status["layout"] = "none";
    for (const Layout& layout : {kFlashLayout, kProductionLayout}) {
      const Bytes* item = firmware_.Flash().Find(layout.item);
      if (!HasMagic(item, layout)) continue;
      status["layout"] = layout.name;
      status["sn"] = Text(*item, layout.serial);
      status["sn2"] = Text(*item, layout.secondSerial);
      break;
    }
    status["imei_count"] = std::to_string(ImeiCount());
  }

 private:
  void WriteProduction(const Frame& frame) {
    if (frame.payload.size() <= 2) return firmware_.Refuse(frame);
    const std::size_t size = frame.payload.size() - 2;
    auto block = std::span(frame.payload).first(size);
    if (Read16(frame.payload, size, firmware_.Order()) != Crc16(block)) {
      return firmware_.Refuse(frame);
    }
    firmware_.Flash().Put(kProductionItem, {block.begin(), block.end()});
    firmware_.Answer(frame, {0, 0});
  }

  void AnswerWithChecksum(std::uint8_t type, Bytes block) {
    Append16(block, Crc16(block), firmware_.Order());
    firmware_.Answer(type, kWriteSubtype, std::move(block));
  }

  std::uint32_t ImeiCount() const {
    std::uint32_t count = 0;
    for (const FixedNvField field : kImeis) {
      const Bytes imei = ReadFixedNv(firmware_.Flash(), field);
      count += std::any_of(imei.begin(), imei.end(), [](std::uint8_t byte) { return byte != 0; });
    }
    return count;
  }

  Firmware& firmware_;
};

}  // namespace

std::unique_ptr<Part> MakeIdentityPart(Firmware& firmware) {
  return std::make_unique<IdentityPart>(firmware);
}

}  // namespace handset
