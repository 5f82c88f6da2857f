#include "wire/wire.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "firmware/random.h"

namespace handset {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Heard {
  explicit Heard(ByteOrder order = ByteOrder::Big)
      : decoder(
            order, [this](Frame frame) { frames.push_back(std::move(frame)); },
            [this](std::string_view reason, const Bytes&) { rejects.emplace_back(reason); }) {}

  void Feed(std::string_view hex) { decoder.Feed(FromHex(hex)); }

  std::vector<Frame> frames;
  std::vector<std::string> rejects;
  FrameDecoder decoder;
};

TEST(Wire, FramesAreLaidOutAsStationsExpect) {
  EXPECT_EQ(ToHex(EncodeFrame({0xFE, 1, {}}, ByteOrder::Little)), "7e 00 00 00 00 08 00 fe 01 7e");
  EXPECT_EQ(ToHex(EncodeFrame({13, 0, {0x7D, 0x7E, 0x7F, 0xFF}, 0xA3AF}, ByteOrder::Big)),
            "7e af a3 00 00 00 0c 0d 00 7d 5d 7d 5e 7f ff 7e");
  Heard heard;
  heard.Feed("00 11 7e 7e 7e af a3 00 00 00 0a 0d 02 7d 5e 7d 5d 7e 55 7e");
  EXPECT_THAT(heard.frames, ElementsAre(Frame{13, 2, {0x7E, 0x7D}, 0xA3AF}));
  EXPECT_THAT(heard.rejects, IsEmpty()) << "noise between frames is none";
  Heard little(ByteOrder::Little);
  little.Feed("7e 00 00 00 00 08 00 1c 00 7e");
  EXPECT_THAT(little.frames, ElementsAre(Frame{28, 0, {}}));
}

TEST(Wire, NothingACarefulSenderWouldNotSendIsTaken) {
  std::string endless("7e");
  for (int i = 0; i < 200'000; ++i) endless += "55";
  const std::pair<std::string, const char*> cases[] = {
      {"7e 00 00 00 00 08 00 1c 00 7e", "length"},  // the other byte order
      {"7e 00 00 00 00 00 09 1c 00 7e", "length"},
      {"7e 00 00 00 00 00 08 1c 7e", "shorter"},
      {"7e 00 00 00 00 00 09 1c 00 7d 7e", "escape"},
      {"7e 00 00 00 00 00 09 1c 00 7d 31 7e", "escape"},
      {endless + "7e", "longer"}};
  for (const auto& [hex, reason] : cases) {
    Heard heard;
    heard.Feed(hex);
    EXPECT_THAT(heard.rejects, ElementsAre(HasSubstr(reason)));
    // A flag that ended noise opens the frame after it.
    heard.Feed("00 00 00 00 00 08 1c 00 7e");
    EXPECT_THAT(heard.frames, ElementsAre(Frame{28, 0, {}})) << reason;
  }
}

TEST(Wire, AnyChunkingGivesTheSameFrames) {
  Random random(7);
  for (const ByteOrder order : {ByteOrder::Big, ByteOrder::Little}) {
    Heard heard(order);
    std::vector<Frame> sent;
    for (std::uint8_t type = 0; type < 200; ++type) {
      Frame frame{type, 1, Bytes(random.Below(300)), static_cast<std::uint32_t>(random.Next())};
      // Mostly the two bytes that need care.
      for (auto& byte : frame.payload) byte = static_cast<std::uint8_t>(0x7B + random.Below(5));
      const Bytes encoded = EncodeFrame(frame, order);
      const std::size_t cut = random.Below(static_cast<std::uint32_t>(encoded.size()));
      heard.decoder.Feed(std::span(encoded).first(cut));
      heard.decoder.Feed(std::span(encoded).subspan(cut));
      sent.push_back(std::move(frame));
    }
    EXPECT_EQ(heard.frames, sent);
  }
}

TEST(Wire, HexadecimalTextIsReadStrictly) {
  EXPECT_THAT(FromHex("0aFf 7E"), ElementsAre(0x0A, 0xFF, 0x7E));
  EXPECT_THROW(FromHex("0g"), std::invalid_argument);
  EXPECT_THROW(FromHex("123"), std::invalid_argument);
}

}  // namespace
}  // namespace handset
