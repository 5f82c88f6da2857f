#include "merovane/log_tool.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/temp_directory.h"

namespace merovane::tool {
namespace {

TEST(LogTool, RendersARecordingAsItsOptionsSay) {
  const test::TempDirectory directory;
  std::string bytes;
  for (char c = 'A'; c < 'A' + 20; ++c) bytes += c;
  directory.Write("rec.bin", bytes);
  RenderOptions options;
  options.recording = (directory / "rec.bin").string();
  options.directory = directory.Path().string();
  std::ostringstream out;
  EXPECT_EQ(Render(options, out), kOk);
  EXPECT_EQ(test::FileText(directory / "rec.log"),
            "<-- 20(0x00000014) Bytes\r\n"
            "00000000h: 41 42 43 44 45 46 47 48 49 4A 4B 4C 4D 4E 4F 50 ; ABCDEFGHIJKLMNOP\r\n"
            "00000010h: 51 52 53 54                                     ; QRST\r\n");

  options.name = "other.txt";
  options.bytesPerLine = 10;
  options.offsets = options.characters = false;
  options.extension = ".raw";
  EXPECT_EQ(Render(options, out), kOk);
  EXPECT_EQ(test::FileText(directory / "other.txt"),
            "<-- 20(0x00000014) Bytes\r\n41 42 43 44 45 46 47 48 49 4A ;\r\n"
            "4B 4C 4D 4E 4F 50 51 52 53 54 ;\r\n");
  EXPECT_EQ(test::FileText(directory / "other_Rd.raw"), bytes);

  options.timeStamps = true;
  options.name = "stamped";
  EXPECT_EQ(Render(options, out), kOk);
  EXPECT_EQ(test::FileText(directory / "stamped.log").front(), '[');

  // A file over its limit is followed by another one.
  directory.Write("rec.bin", std::string((1 << 20) + 1, 'x'));
  options.name = "rolled";
  options.sizeLimitMb = 1;
  EXPECT_EQ(Render(options, out), kOk);
  EXPECT_TRUE(std::filesystem::exists(directory / "rolled_1.log"));

  options.recording = "none";
  EXPECT_THROW(Render(options, out), Trouble);
}

}  // namespace
}  // namespace merovane::tool
