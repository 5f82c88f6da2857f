// The fixed-NV information block as stations read and write it, type 94.
#include <algorithm>
#include <array>

#include "parts/memory/crc16.h"
#include "parts/memory/fixed_nv.h"
#include "parts/memory/memory.h"

namespace handset {
namespace {

constexpr std::uint8_t kFixedNvType = 94;
constexpr std::uint8_t kAnswerSubtype = 1;
constexpr std::uint8_t kCheckSubtype = 0xC0;
constexpr std::uint8_t kReadSubtype = 0xFF;

struct MaskedField {
  std::uint8_t mask;
  FixedNvField field;
};

constexpr std::array<MaskedField, 7> kWritable{{
    {0x01, kImei1},
    {0x02, kImei2},
    {0x04, kBluetoothAddress},
    {0x08, kGpsBlock},
    {0x10, kImei3},
    {0x20, kImei4},
    {0x40, kWifiAddress},
}};

class FixedNvPart final : public Part {
 public:
  explicit FixedNvPart(Firmware& firmware) : firmware_(firmware) {}

  std::string Name() const override { return "fixed_nv"; }

  void Register(Registry& registry) override {
    // The subtype of a write is the mask of what it writes.
    registry.OnType(kFixedNvType, [this](const Frame& frame) { Write(frame); });
    registry.On(kFixedNvType, kReadSubtype, [this](const Frame&) {
      Bytes answer = FixedNv(firmware_.Flash());
      Append16(answer, Crc16(answer), firmware_.Order());
      firmware_.Answer(kFixedNvType, kAnswerSubtype, std::move(answer));
    });
    registry.On(kFixedNvType, kCheckSubtype, [this](const Frame&) {
      firmware_.Answer(kFixedNvType, kAnswerSubtype, {0, 0});
    });
  }

  void WriteFactoryData(Storage& flash) override {
    const std::vector<std::string>& imeis = firmware_.Options().imeis;
    for (std::size_t i = 0; i < std::min(imeis.size(), kImeis.size()); ++i) {
      WriteFixedNv(flash, kImeis[i], PackImei(imeis[i]));
    }
    WriteFixedNv(flash, kBluetoothAddress, Bytes{0x06, 0x05, 0x04, 0x03, 0x02, 0x02});
    WriteFixedNv(flash, kWifiAddress, Bytes{0x02, 0x12, 0x13, 0x14, 0x15, 0x16});
  }

  void Describe(StatusMap& status) const override {
    Storage& flash = firmware_.Flash();
    status["imei1"] = ImeiText(ReadFixedNv(flash, kImei1));
    status["imei2"] = ImeiText(ReadFixedNv(flash, kImei2));
    status["imei3"] = ImeiText(ReadFixedNv(flash, kImei3));
    status["imei4"] = ImeiText(ReadFixedNv(flash, kImei4));
    const Bytes bluetooth = ReadFixedNv(flash, kBluetoothAddress);
    status["bluetooth"] = ToHex(Bytes(bluetooth.rbegin(), bluetooth.rend()));
    status["wifi"] = ToHex(ReadFixedNv(flash, kWifiAddress));
  }

 private:
  void Write(const Frame& frame) {
    if (frame.payload.size() != kFixedNvBytes + 2) return firmware_.Refuse(frame);
    const auto block = std::span(frame.payload).first(kFixedNvBytes);
    const std::uint16_t checksum = Read16(frame.payload, kFixedNvBytes, firmware_.Order());
    // No checksum is a direct write; a wrong one is a damaged block.
    if (checksum != 0 && checksum != Crc16(block)) return firmware_.Refuse(frame);
    for (const MaskedField& each : kWritable) {
      if ((frame.subtype & each.mask) == 0) continue;
      WriteFixedNv(firmware_.Flash(), each.field,
                   block.subspan(each.field.offset, each.field.bytes));
    }
    firmware_.Answer(kFixedNvType, kAnswerSubtype, {0, 0});
  }

  Firmware& firmware_;
};

}  // namespace

std::unique_ptr<Part> MakeFixedNvPart(Firmware& firmware) {
  return std::make_unique<FixedNvPart>(firmware);
}

}  // namespace handset
