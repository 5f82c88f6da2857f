#include "platform/module.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/files.h"
#include "support/temp_directory.h"

namespace merovane::platform {
namespace {

TEST(Module, IsFoundBesideTheProgramWhateverTheWorkingDirectory) {
  const merovane::test::TempDirectory elsewhere;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(elsewhere.Path());
  Module module;
  EXPECT_TRUE(module.Load("PlatformProbe"));
  std::filesystem::current_path(before);

  const auto answer = reinterpret_cast<int (*)()>(module.Find("PlatformProbeAnswer"));
  ASSERT_NE(answer, nullptr);
  EXPECT_EQ(answer(), 42);
  EXPECT_EQ(module.Find("NoSuchFunction"), nullptr);
  module.Free();
  EXPECT_FALSE(module.IsLoaded());
  EXPECT_EQ(module.Find("PlatformProbeAnswer"), nullptr);
}

// The system lets no thread end while a library is being unloaded on Windows; waiting for one there
// must not take the whole limit.
TEST(Module, IsUnloadedWithoutWaitingInVainForItsThreads) {
  bool endedInTime = false;
  Module module;
  ASSERT_TRUE(module.Load("PlatformProbe"));
  const auto start = reinterpret_cast<void (*)(bool*)>(module.Find("PlatformProbeStartThread"));
  ASSERT_NE(start, nullptr);
  start(&endedInTime);
  module.Free();
  EXPECT_TRUE(endedInTime);
}

TEST(Module, IsNotLoadedWhenItIsMissingOrNoLibrary) {
  Module module;
  ASSERT_TRUE(module.Load("PlatformProbe"));
  EXPECT_FALSE(module.Load("NoSuchLibrary"));
  EXPECT_FALSE(module.IsLoaded()) << "the one before is let go";
  EXPECT_FALSE(module.Load(""));

  const std::filesystem::path garbage[] = {ExecutableDirectory() / "libPlatformGarbage.so",
                                           ExecutableDirectory() / "PlatformGarbage.dll"};
  for (const auto& path : garbage) std::ofstream(path) << "no library";
  EXPECT_FALSE(module.Load("PlatformGarbage"));
  for (const auto& path : garbage) std::filesystem::remove(path);
}

}  // namespace
}  // namespace merovane::platform
