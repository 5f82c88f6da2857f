#include "link/settings.h"

#include <gtest/gtest.h>

#include "link/byte_order.h"
#include "support/temp_directory.h"

namespace merovane::test {
namespace {

struct Read {
  std::uint32_t increment;
  bool useful, all, big;
  friend bool operator==(const Read&, const Read&) = default;
};
void PrintTo(const Read& read, std::ostream* out) {
  *out << read.increment << " useful " << read.useful << " all " << read.all << " big " << read.big;
}
constexpr Read kDefaults{0, false, false, true};

Read ReadIn(const std::filesystem::path& directory) {
  const LinkSettings settings(directory);
  EXPECT_EQ(settings.receiveMode, 0u);
  EXPECT_FALSE(settings.SavesReceivedData());
  EXPECT_FALSE(settings.ReceivesThroughThread());
  EXPECT_EQ(settings.Server(), nullptr);
  const Read read{settings.receiveIncrementMs, settings.usefulLog, settings.allLog, BigEndian()};
  SetBigEndian(true);
  return read;
}

Read ReadText(std::string_view text) {
  const TempDirectory directory;
  directory.Write("Merovane.ini", text);
  return ReadIn(directory.Path());
}

TEST(Settings, HaveDefaultsWithoutAReadableFile) {
  const TempDirectory directory;
  EXPECT_EQ(ReadIn(directory.Path()), kDefaults);
  EXPECT_EQ(ReadIn(directory / "missing"), kDefaults);
  std::filesystem::create_directory(directory / "Merovane.ini");
  EXPECT_EQ(ReadIn(directory.Path()), kDefaults);
  EXPECT_EQ(ReadText(""), kDefaults);
  EXPECT_EQ(ReadText(std::string(3000, '\0')), kDefaults);
  EXPECT_EQ(ReadText("[[[[\r\n=\r\n[Record Comm Log"), kDefaults);
}

TEST(Settings, AreReadFromTheirSections) {
  EXPECT_EQ(ReadText("[Inc Recv Timeout]\r\nTimeout=200\r\n[Record Comm Log]\r\n"
                     "Record Useful Log=1\r\n[Endian Control]\r\nBig Endian=0\r\n"),
            (Read{200, true, false, false}));
  EXPECT_EQ(ReadText("\xEF\xBB\xBF[record comm log]\nRECORD ALL LOG = \"1\" \n\n"
                     "[ INC RECV TIMEOUT ]\n; Timeout=9\n  timeout  =  0150ms\n"),
            (Read{150, false, true, true}));
}

TEST(Settings, OfWrongKindOrRangeDoNotFail) {
  EXPECT_EQ(ReadText("[Inc Recv Timeout]\nTimeout=soon\n[Endian Control]\nBig Endian=\n"),
            kDefaults);
  EXPECT_EQ(ReadText("[Inc Recv Timeout]\nTimeout=4294967295\n").increment, UINT32_MAX);
  EXPECT_EQ(ReadText("[Record Comm Log]\nRecord Useful Log=-1\nRecord All Log=7\n"),
            (Read{0, true, true, true}));
  EXPECT_EQ(ReadText("[Socket]\nConnect ChannelServer=1\nPort=1\n"), kDefaults)
      << "nobody listens there";
  EXPECT_EQ(ReadText("[Socket]\nConnect ChannelServer=1\nPort=99999999\n"), kDefaults);
}

}  // namespace
}  // namespace merovane::test
