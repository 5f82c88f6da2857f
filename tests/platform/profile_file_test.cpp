#include "platform/profile_file.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "support/temp_directory.h"

namespace merovane::platform {
namespace {

using merovane::test::TempDirectory;

TEST(ProfileFile, ReadsIntegersAsFarAsTheirDigitsGo) {
  const std::pair<std::uint32_t, std::vector<const char*>> values[] = {
      {0, {"- 5", "0X10", "0x", "abc"}},
      {1, {"1 2", "'1'"}},
      {3, {"3;4"}},
      {5, {"+5", "0b101", "4294967301"}},
      {0U - 5U, {"-5"}},
      {7, {"", "\"\""}},
      {12, {"12", " \t 12abc", "012"}},
      {15, {"0o17"}},
      {0U - 16U, {"-0x10"}},
      {31, {"0x1Fg"}},
      {36'667, {"\" 36667\""}},
      {1'661'992'959, {"99999999999999999999"}},
      {UINT32_MAX, {"4294967295"}}};
  for (const auto& [value, texts] : values) {
    for (const std::string text : texts) {
      const auto profile = ProfileFile::Parse("[S]\r\nK=" + text + "\r\n");
      EXPECT_EQ(profile.Integer("S", "K", 7), value) << text;
    }
  }
}

std::string Utf16(const std::string& ascii, bool bigEndian) {
  std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char c : ascii) {
    if (bigEndian) bytes += '\0';
    bytes += c;
    if (!bigEndian) bytes += '\0';
  }
  return bytes;
}

TEST(ProfileFile, FindsTheFirstSectionOfANameAndInItTheFirstKey) {
  const std::string text =
      "Port=1\n"
      "  [ Inc Recv Timeout ]  ; note\n"
      "\t Time Out \t=  250  \r\n"
      "path = \"C:\\a b\" \r"
      "odd = \"x'\neq=a=b\n\n"
      ";[Socket]\n;Port=3\n"
      "[Socket]\nPort\n; Port=4\n Port=5\nPort=6\n"
      "[Last]\nPort=7\n"
      "[socket]\nPort=8\nLate=9";
  const std::array<const char*, 3> found[] = {{"INC RECV TIMEOUT", "time out", "250"},
                                              {"inc recv timeout", "PATH", "C:\\a b"},
                                              {"Inc Recv Timeout", "odd", "\"x'"},
                                              {"Inc Recv Timeout", "eq", "a=b"},
                                              {"Inc Recv Timeout", "none", "no"},
                                              {"IncRecvTimeout", "eq", "no"},
                                              {"Socket", "Port", "5"},
                                              {"Socket", "Late", "no"},
                                              {"Last", "Port", "7"},
                                              {"", "Port", "no"}};
  for (const std::string& bytes : {text, "\xEF\xBB\xBF" + text, Utf16(text, false),
                                   Utf16(text, true), Utf16(text, false) + "x"}) {
    const auto profile = ProfileFile::Parse(bytes);
    for (const auto& [section, key, value] : found) {
      EXPECT_EQ(profile.Text(section, key, "no"), value) << section << " " << key;
    }
  }
}

TEST(ProfileFile, SurvivesTextThatIsNoSettingsFile) {
  using namespace std::string_literals;
  const std::string longLine(300'000, 'x');
  const auto profile =
      ProfileFile::Parse("[S]\n" + longLine + "=1\nA\0B=2\n[Open\nK=3\n[]\n=4\nK=5\n"s);
  EXPECT_EQ(profile.Integer("S", longLine, 0), 1U);
  EXPECT_EQ(profile.Integer("S", "A\0B"s, 0), 2U);
  EXPECT_EQ(profile.Integer("Open", "K", 0), 3U);
  EXPECT_EQ(profile.Integer("", "", 0), 4U);

  std::mt19937 random(20);
  const std::string alphabet = "[]=; \t\r\n\"'0x-K\xEF\xFF\xFE\xD8"s + '\0';
  for (int i = 0; i < 20'000; ++i) {
    std::string bytes(random() % 24, ' ');
    for (char& byte : bytes) byte = alphabet[random() % alphabet.size()];
    const auto any = ProfileFile::Parse(std::move(bytes));
    any.Integer("", "K", 0);
    any.Text("K", "K", "");
  }
}

TEST(ProfileFile, LoadsWholeLinesWithinTheLimitAndTreatsTheRestAsEmpty) {
  const TempDirectory directory;
  std::string text = "[S]\nFirst=1\n";
  text.resize((1U << 20) - 7, ' ');
  text += "\nCut=12345\nLate=1\n";  // the limit falls after "Cut=12"
  directory.Write("huge.ini", text);
  const auto profile = ProfileFile::Load(directory / "huge.ini");
  EXPECT_EQ(profile.Integer("S", "First", 0), 1U);
  EXPECT_EQ(profile.Integer("S", "Cut", 0), 0U);
  EXPECT_EQ(profile.Integer("S", "Late", 0), 0U);
  directory.Write("empty.ini", "");
  for (const char* name : {"empty.ini", "missing.ini", ".", "missing/a.ini", "huge.ini/b"}) {
    EXPECT_EQ(ProfileFile::Load(directory / name).Integer("S", "First", 7), 7U) << name;
  }
}

}  // namespace
}  // namespace merovane::platform
