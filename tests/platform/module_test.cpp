#include "platform/module.h"

#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <utility>

#include "platform/files.h"
#include "platform/system.h"
#include "support/temp_directory.h"

namespace merovane::platform {
namespace {

// Loads the probe library, whose thread starts with it.
bool LoadProbe(Module& module) {
  if (!module.Load("PlatformProbe")) return false;
  const auto runs = reinterpret_cast<bool (*)()>(module.Find("PlatformProbeRuns"));
  return runs && runs();
}

TEST(Module, IsFoundBesideTheProgramWhateverTheWorkingDirectory) {
  const merovane::test::TempDirectory elsewhere;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(elsewhere.Path());
  Module module;
  EXPECT_TRUE(LoadProbe(module));
  std::filesystem::current_path(before);

  EXPECT_EQ(module.Find("NoSuchFunction"), nullptr);
  module.Free();
  EXPECT_FALSE(module.IsLoaded());
  EXPECT_EQ(module.Find("PlatformProbeRuns"), nullptr);
}

std::filesystem::path CopyProbe(const merovane::test::TempDirectory& folder,
                                const std::string& name) {
  std::filesystem::path copy = folder.Path() / test::LibraryFile(name);
  std::filesystem::copy_file(ExecutableDirectory() / test::LibraryFile("PlatformProbe"), copy);
  return copy;
}

// A station may keep its libraries in another folder than the program that loads the first of them.
TEST(Module, IsFoundBesideTheLibraryThatLoadsIt) {
  const merovane::test::TempDirectory elsewhere;
  CopyProbe(elsewhere, "PlatformOther");
  const test::LoadedFile library(CopyProbe(elsewhere, "PlatformProbe"));
  const auto finds = reinterpret_cast<bool (*)(const char*)>(library.Find("PlatformProbeFinds"));
  ASSERT_NE(finds, nullptr);
  EXPECT_TRUE(finds("PlatformOther"));
  EXPECT_FALSE(finds("PlatformMissing"));
  EXPECT_FALSE(Module().Load("PlatformOther")) << "it is not beside this program";
}

// No thread runs before its library is loaded, and on Windows none can end while it is unloaded:
// neither may be waited for.
TEST(Module, IsLoadedAndUnloadedWithoutWaitingInVainForItsThreads) {
  bool endedInTime = false;
  Module module;
  ASSERT_TRUE(LoadProbe(module));
  const auto tell = reinterpret_cast<void (*)(bool*)>(module.Find("PlatformProbeTellTheEnd"));
  ASSERT_NE(tell, nullptr);
  tell(&endedInTime);
  module.Free();
  EXPECT_TRUE(endedInTime);
}

TEST(Module, StaysInMemoryWithAThreadThatItGaveUp) {
  const merovane::test::TempDirectory elsewhere;
  std::optional<test::LoadedFile> library(std::in_place, CopyProbe(elsewhere, "PlatformProbe"));
  const auto runs = reinterpret_cast<bool (*)()>(library->Find("PlatformProbeRuns"));
  const auto giveUp = reinterpret_cast<void (*)()>(library->Find("PlatformProbeGiveUp"));
  ASSERT_TRUE(runs && giveUp);
  EXPECT_TRUE(runs());
  giveUp();
  library.reset();
  EXPECT_TRUE(runs());
}

TEST(Module, IsNotLoadedWhenItIsMissingOrNoLibrary) {
  Module module;
  ASSERT_TRUE(LoadProbe(module));
  EXPECT_FALSE(module.Load("NoSuchLibrary"));
  EXPECT_FALSE(module.IsLoaded()) << "the one before is let go";
  EXPECT_FALSE(module.Load(""));

  const auto garbage = ExecutableDirectory() / test::LibraryFile("PlatformGarbage");
  std::ofstream(garbage) << "no library";
  EXPECT_FALSE(module.Load("PlatformGarbage"));
  std::filesystem::remove(garbage);
}

}  // namespace
}  // namespace merovane::platform
