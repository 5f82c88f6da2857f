#include "typed_data.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "hex_dump.h"

namespace channel_server {
namespace {

using namespace std::string_literals;

std::optional<std::string> Typed(const std::string& line) {
  const auto data = ParseTypedData(line);
  if (!data) return std::nullopt;
  return std::string(reinterpret_cast<const char*>(data->data()), data->size());
}

TEST(TypedData, TakesHexBytesWithAndWithoutBlanks) {
  EXPECT_EQ(Typed("7e 00 7D5e"), "\x7E\x00\x7D\x5E"s);
  EXPECT_EQ(Typed("  FF\r"), "\xFF"s);
  EXPECT_EQ(Typed(""), ""s);
  for (const char* wrong : {"7", "7 e", "0x7e", "7e,00", "-1", "+1", "zz"}) {
    EXPECT_EQ(Typed(wrong), std::nullopt) << wrong;
  }
}

TEST(TypedData, TakesTextWithEscapes) {
  EXPECT_EQ(Typed(R"(text:AT+CGSN\r\n)"), "AT+CGSN\r\n"s);
  EXPECT_EQ(Typed(R"(text: \\ \t\0\x7E~)"), " \\ \t\0\x7E~"s);
  EXPECT_EQ(Typed("text:"), ""s);
  for (const char* wrong : {R"(text:\)", R"(text:\q)", R"(text:\x7)", R"(text:\xzz)"}) {
    EXPECT_EQ(Typed(wrong), std::nullopt) << wrong;
  }
}

TEST(HexDump, HasAnOffsetAHexAndACharacterColumn) {
  std::vector<std::byte> data(18);
  for (std::size_t i = 0; i < data.size(); ++i) data[i] = static_cast<std::byte>(0x70 + i);
  EXPECT_EQ(HexDump(data),
            "  0000  70 71 72 73 74 75 76 77  78 79 7a 7b 7c 7d 7e 7f  |pqrstuvwxyz{|}~.|\n"
            "  0010  80 81                                             |..|\n");
  EXPECT_EQ(HexDump({}), "");
}

}  // namespace
}  // namespace channel_server
