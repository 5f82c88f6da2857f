#include <stdio.h>

#include <filesystem>
#include <fstream>

#include "support/station.h"
#include "support/temp_directory.h"

namespace merovane::test {
namespace {

namespace fs = std::filesystem;

// A station program in a directory of its own, with a settings file beside it.
struct SettingsFile : ::testing::Test {
  SettingsFile() { running.phone.OnFrame(12, 0, Reply::Nothing()); }
  // What the program printed.
  std::string Run() {
    const fs::path program = SETTINGS_PROBE;
    fs::copy_file(program, directory / "station", fs::copy_options::skip_existing);
    for (const auto& entry : fs::directory_iterator(program.parent_path())) {
      const fs::path link = directory / entry.path().filename().string();
      if (entry.path().extension() == ".so" && !fs::exists(link)) {
        fs::create_symlink(entry.path(), link);
      }
    }
    FILE* const output = ::popen((directory / "station").c_str(), "r");
    char line[200] = {};
    EXPECT_NE(::fgets(line, sizeof line, output), nullptr);
    EXPECT_EQ(::pclose(output), 0);
    return line;
  }
  std::vector<std::string> Logs() {
    std::vector<std::string> names;
    std::error_code none;
    for (const auto& entry : fs::recursive_directory_iterator(directory / "Log", none)) {
      if (entry.is_regular_file()) names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }

  RunningHandset running{1, kPort};
  TempDirectory directory;
};

using ::testing::ElementsAre;
using ::testing::StartsWith;

TEST_F(SettingsFile, IsNotNeeded) {
  EXPECT_THAT(Run(), StartsWith("big 1 open 0 mode 0 silent 11 waited "));
  EXPECT_THAT(Logs(), ElementsAre());
}

TEST_F(SettingsFile, ChoosesLogsAndTheExtraTime) {
  directory.Write("Merovane.ini",
                  "[Record Comm Log]\r\nRecord Useful Log=1\r\nRecord All Log=1\r\n"
                  "[Inc Recv Timeout]\r\nTimeout=400\r\n");
  const std::string line = Run();
  EXPECT_THAT(line, StartsWith("big 1 open 0 mode 0 silent 11 waited "));
  EXPECT_GE(std::stoi(line.substr(line.rfind(' '))), 450);
  EXPECT_THAT(Logs(), ElementsAre("Com7_AllLog.txt", "Com7_UsefulLog.txt"));
  EXPECT_FALSE(fs::exists(directory / "Merovane.ini.tmp"));
}

TEST_F(SettingsFile, ChoosesTheByteOrder) {
  directory.Write("Merovane.ini", "\xEF\xBB\xBF[endian control]\nbig endian = 0\n");
  EXPECT_THAT(Run(), StartsWith("big 0 open 0 mode 11 silent 11"));
  EXPECT_THAT(running.phone.Rejected(), ::testing::Not(::testing::IsEmpty()));
}

TEST_F(SettingsFile, MayBeADirectoryAndTheLogFolderAFile) {
  fs::create_directory(directory / "Merovane.ini");
  EXPECT_THAT(Run(), StartsWith("big 1 open 0 mode 0"));
  fs::remove(directory / "Merovane.ini");
  directory.Write("Merovane.ini",
                  "[Record Comm Log]\r\nRecord Useful Log=1\r\nRecord All Log=1\r\n");
  directory.Write("Log", "in the way");
  EXPECT_THAT(Run(), StartsWith("big 1 open 0 mode 0")) << "commands go on without their logs";
  EXPECT_EQ(FileText(directory / "Log"), "in the way");
}

TEST_F(SettingsFile, MayNameAChannelServerThatIsNotThere) {
  directory.Write("Merovane.ini", "[Socket]\r\nConnect ChannelServer=1\r\nPort=1\r\n");
  EXPECT_THAT(Run(), StartsWith("big 1 open 0 mode 0"));
}

}  // namespace
}  // namespace merovane::test
