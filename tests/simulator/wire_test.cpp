#include "handset/wire.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "handset/random.h"

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
  EXPECT_EQ(ToHex(EncodeFrame({0xFE, 1, {}}, ByteOrder::Big)), "7e 00 00 00 00 00 08 fe 01 7e");
  EXPECT_EQ(ToHex(EncodeFrame({0xFE, 1, {}}, ByteOrder::Little)), "7e 00 00 00 00 08 00 fe 01 7e");
  EXPECT_EQ(ToHex(EncodeFrame({13, 0, {0x7D, 0x7E, 0x7F, 0xFF}, 0xA3AF}, ByteOrder::Big)),
            "7e af a3 00 00 00 0c 0d 00 7d 5d 7d 5e 7f ff 7e");
}

TEST(Wire, ReadsWhatStationsSend) {
  Heard heard;
  heard.Feed(
      "00 11 7e 7e 7e af a3 00 00 00 0a 0d 02 7d 5e 7d 5d 7e 55 7e 00 00 00 00 00 08 1c 00 7e");
  EXPECT_THAT(heard.frames, ElementsAre(Frame{13, 2, {0x7E, 0x7D}, 0xA3AF}, Frame{28, 0, {}, 0}));
  EXPECT_THAT(heard.rejects, IsEmpty());

  Heard little(ByteOrder::Little);
  little.Feed("7e 00 00 00 00 08 00 1c 00 7e");
  EXPECT_EQ(little.frames.size(), 1u);
}

TEST(Wire, NothingACarefulSenderWouldNotSendIsTaken) {
  struct Case {
    const char* hex;
    const char* reason;
  };
  for (const Case& c : {
           Case{"7e 00 00 00 00 08 00 1c 00 7e", "length"},  // the other byte order
           Case{"7e 00 00 00 00 00 09 1c 00 7e", "length"},
           Case{"7e 00 00 00 00 00 08 1c 7e", "shorter"},
           Case{"7e 00 00 00 00 00 09 1c 00 7d 7e", "escape"},
           Case{"7e 00 00 00 00 00 09 1c 00 7d 31 7e", "escape"},
       }) {
    Heard heard;
    heard.Feed(c.hex);
    EXPECT_THAT(heard.rejects, ElementsAre(HasSubstr(c.reason))) << c.hex;
    // A flag that ended noise opens the frame after it.
    heard.Feed("00 00 00 00 00 08 1c 00 7e");
    EXPECT_THAT(heard.frames, ElementsAre(Frame{28, 0, {}, 0})) << c.hex;
  }
}

TEST(Wire, EndlessBytesWithoutAFlagDoNotPileUp) {
  Heard heard;
  heard.Feed("7e");
  heard.decoder.Feed(Bytes(200'000, 0x55));
  EXPECT_THAT(heard.rejects, ElementsAre(HasSubstr("longer")));
  heard.Feed("7e 00 00 00 00 00 08 1c 00 7e");
  EXPECT_EQ(heard.frames.size(), 1u);
}

TEST(Wire, AnyChunkingGivesTheSameFrames) {
  Random random(7);
  for (ByteOrder order : {ByteOrder::Big, ByteOrder::Little}) {
    std::vector<Frame> sent;
    Bytes stream;
    for (int i = 0; i < 200; ++i) {
      Frame frame{static_cast<uint8_t>(random.Next()),
                  static_cast<uint8_t>(random.Next()),
                  {},
                  static_cast<uint32_t>(random.Next())};
      frame.payload.resize(random.Below(300));
      // Mostly the two bytes that need care.
      for (uint8_t& byte : frame.payload) byte = static_cast<uint8_t>(0x7B + random.Below(5));
      Bytes encoded = EncodeFrame(frame, order);
      stream.insert(stream.end(), encoded.begin(), encoded.end());
      sent.push_back(std::move(frame));
    }
    Heard heard(order);
    for (std::span<const uint8_t> rest = stream; !rest.empty();) {
      size_t count = std::min<size_t>(rest.size(), 1 + random.Below(40));
      heard.decoder.Feed(rest.first(count));
      rest = rest.subspan(count);
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
