#include "parts/radio/td_parameters.h"

#include <algorithm>
#include <string>

namespace handset {
namespace {

constexpr std::uint8_t kType = 36;
constexpr std::size_t kMaxValues = 3073;

std::string FlashName(std::uint32_t selector) { return "td/" + std::to_string(selector); }

}  // namespace

void TdParameters::Register(Registry& registry) {
  registry.On(kType, 0, [this](const Frame& frame) { Read(frame); });
  registry.On(kType, 1, [this](const Frame& frame) { Write(frame); });
}

// As many values as are stored, at most as many as asked for.
void TdParameters::Read(const Frame& frame) {
  const std::uint32_t selector = Read32(frame.payload, 0, firmware_.Order());
  const std::size_t asked = Read16(frame.payload, 4, firmware_.Order());
  if (asked > kMaxValues) return firmware_.Refuse(frame);
  const Bytes* stored = firmware_.Flash().Find(FlashName(selector));
  const std::size_t count = std::min(asked, stored ? stored->size() / 2 : 0);
  Bytes answer;
  Append32(answer, selector, firmware_.Order());
  Append16(answer, static_cast<std::uint16_t>(count), firmware_.Order());
  if (stored) {
    answer.insert(answer.end(), stored->begin(),
                  stored->begin() + static_cast<std::ptrdiff_t>(2 * count));
  }
  answer.resize(6 + 2 * asked);
  firmware_.Answer(frame, std::move(answer));
}

void TdParameters::Write(const Frame& frame) {
  const std::uint32_t selector = Read32(frame.payload, 0, firmware_.Order());
  const std::size_t count = Read16(frame.payload, 4, firmware_.Order());
  if (count > kMaxValues || frame.payload.size() != 6 + 2 * count) return firmware_.Refuse(frame);
  firmware_.Flash().Put(FlashName(selector), Bytes(frame.payload.begin() + 6, frame.payload.end()));
  Bytes answer(frame.payload.begin(), frame.payload.begin() + 6);
  answer.resize(8);
  firmware_.Answer(frame, std::move(answer));
}

}  // namespace handset
