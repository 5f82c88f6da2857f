// What only Windows has: attributes, sharing, code pages, windows, consoles.
#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <random>

#include "platform/com_components.h"
#include "platform/console.h"
#include "platform/device_handle.h"
#include "platform/files.h"
#include "platform/message_queue.h"
#include "platform/profile_file.h"
#include "platform/system.h"
#include "platform/thread.h"
#include "platform/win32/windows_api.h"
#include "support/temp_directory.h"

namespace merovane::platform {
namespace {

using merovane::test::FileText;
using merovane::test::TempDirectory;

// The system's own reader is the measure.
TEST(Win32ProfileFile, ReadsWhatTheSystemReads) {
  const TempDirectory directory;
  const auto path = directory / "same.ini";
  std::mt19937 random(11);
  const std::string pieces[] = {
      "[S]",    "[s ]",   "[ S]x",   "[T]",      ";K=1",          "K=", " k = 12 ", "K=0x1Fz",
      "K=-3",   "K='4'",  "K=\"5\"", "K=+6;7",   "L=8",           "=9", "K=abc",    "K==1",
      "K=0b11", "K=0o17", "K=0X1",   "K=\" 7\"", "K=99999999999", "",   "  "};
  for (int i = 0; i < 300; ++i) {
    std::string text;
    for (unsigned line = random() % 9; line > 0; --line) {
      text += pieces[random() % std::size(pieces)] + "\r\n";
    }
    directory.Write("same.ini", text);
    // Empties the system's cache of settings files.
    WritePrivateProfileStringW(nullptr, nullptr, nullptr, path.c_str());
    EXPECT_EQ(ProfileFile::Load(path).Integer("S", "K", 77),
              GetPrivateProfileIntW(L"S", L"K", 77, path.c_str()))
        << text;
  }
}

TEST(Win32Files, KeepTheirOtherAttributes) {
  const TempDirectory directory;
  const auto path = directory / "a.txt";
  directory.Write("a.txt", "old");
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  const DWORD before = GetFileAttributesW(path.c_str());
  EXPECT_TRUE(SetReadOnly(path, true));
  EXPECT_EQ(GetFileAttributesW(path.c_str()), before | FILE_ATTRIBUTE_READONLY);
  EXPECT_TRUE(SetReadOnly(path, false));
  EXPECT_EQ(GetFileAttributesW(path.c_str()), before);
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(Win32Files, AreAbsoluteWithADriveOrAShareOnly) {
  for (const char* const path : {"D:\\x", "d:/x", "D:x", "\\\\server\\x", "//server/x"}) {
    EXPECT_TRUE(IsAbsolutePath(path)) << path;
  }
  for (const char* const path : {"", "x", "\\", "\\x", "/x", "x\\y:"}) {
    EXPECT_FALSE(IsAbsolutePath(path)) << path;
  }
}

UniqueHandle OpenForReading(const std::filesystem::path& path, DWORD sharedWith) {
  return FileHandle(
      CreateFileW(path.c_str(), GENERIC_READ, sharedWith, nullptr, OPEN_EXISTING, 0, nullptr));
}

TEST(Win32Files, AreReplacedAsFarAsOneThatReadsThemLetsThemBeWritten) {
  const TempDirectory directory;
  const auto path = directory / "nv.bin";
  directory.Write("nv.bin", "old content");
  {
    const UniqueHandle reader = OpenForReading(path, FILE_SHARE_READ);
    EXPECT_FALSE(ReplaceFile(path, std::string(100'000, 'x')));
  }
  EXPECT_EQ(FileText(path), "old content");
  for (const DWORD sharedWith : {FILE_SHARE_READ | FILE_SHARE_WRITE,
                                 FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE}) {
    const UniqueHandle reader = OpenForReading(path, sharedWith);
    for (const std::string& content : {std::string(100'000, 'x'), std::string("short")}) {
      EXPECT_TRUE(ReplaceFile(path, content)) << sharedWith;
      EXPECT_EQ(FileText(path), content);
    }
  }
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.Path()), {}), 1);
}

TEST(Win32Files, AreNamedInTheAnsiCodePage) {
  const TempDirectory directory;
  const std::wstring wide = L"\u00E9.txt";
  if (WideFromNarrow(NarrowFromWide(wide)) != wide) GTEST_SKIP() << "not in this code page";
  const std::string text = TextFromPath(directory.Path() / wide);
  std::ofstream(PathFromText(text)) << "x";
  EXPECT_EQ(FileText(directory.Path() / wide), "x");
  EXPECT_EQ(TextFromPath(PathFromText(text)), text);
}

std::uintptr_t got = 0;

LRESULT CALLBACK WindowProcedure(HWND window, UINT id, WPARAM first, LPARAM second) {
  if (id == WM_USER + 5) got = first;
  return DefWindowProcW(window, id, first, second);
}

// A window's messages are not lost to a thread that takes its messages here.
TEST(Win32MessageQueue, HandsWindowMessagesToTheirWindow) {
  WNDCLASSW windowClass{};
  windowClass.lpszClassName = L"PlatformTest";
  windowClass.lpfnWndProc = WindowProcedure;
  RegisterClassW(&windowClass);
  HWND window = CreateWindowExW(0, windowClass.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE,
                                nullptr, nullptr, nullptr);
  if (!window) GTEST_SKIP() << "no windows here";
  PostMessageW(window, WM_USER + 5, 17, 0);
  Message message;
  while (got == 0 && TakeMessage(message, 60'000)) DispatchForeignMessage(message);
  EXPECT_EQ(got, 17U);
  DestroyWindow(window);
  while (TakeMessage(message, 0)) DispatchForeignMessage(message);
}

TEST(Win32DeviceHandle, IsGivenASecondTime) {
  const test::OwnedEvent event;
  const UniqueHandle second(reinterpret_cast<HANDLE>(SecondHandle(event.Handle())));
  SetEvent(second.get());
  EXPECT_TRUE(event.IsSet());
}

// As the end of the process leaves threads: killed, and with nothing set.
TEST(Win32Thread, IsNotWaitedForAfterItWasKilled) {
  Thread thread;
  ASSERT_TRUE(thread.Start([] { Sleep(INFINITE); }));
  UniqueHandle killer(OpenThread(THREAD_TERMINATE, FALSE, thread.Id()));
  ASSERT_TRUE(killer);
  TerminateThread(killer.get(), 0);
  EXPECT_TRUE(thread.WaitMs(INFINITE));
  EXPECT_FALSE(thread.Running());
}

// The start of the console's first line; empty when the process has no console.
std::wstring ConsoleText() {
  const UniqueHandle output = FileHandle(CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                                     OPEN_EXISTING, 0, nullptr));
  std::array<wchar_t, 5> text{};
  DWORD count = 0;
  if (output) {
    ReadConsoleOutputCharacterW(output.get(), text.data(), text.size(), COORD{0, 0}, &count);
  }
  return {text.data(), count};
}

TEST(Win32Console, IsMadeWrittenAndReleased) {
  FreeConsole();
  SetConsole(ConsoleState::Hidden);
  if (GetConsoleCP() == 0) GTEST_SKIP() << "without a display there is no console";
  EXPECT_FALSE(IsWindowVisible(GetConsoleWindow()));
  WriteConsole("ab\r\n");
  EXPECT_EQ(ConsoleText().substr(0, 2), L"ab");
  SetConsole(ConsoleState::Shown);
  EXPECT_TRUE(IsWindowVisible(GetConsoleWindow()));
  SetConsole(ConsoleState::Off);
  WriteConsole("lost");
  EXPECT_EQ(ConsoleText(), L"");
  AttachConsole(ATTACH_PARENT_PROCESS);
}

TEST(Win32Components, AreFoundByTheNameThatTheyAreRegisteredUnder) {
  constexpr wchar_t kId[] = L"{6C1B5C5E-2F0D-4B0E-9C1A-4D65726F7661}";
  EXPECT_FALSE(IsComponentRegistered("Merovane.Probe"));
  ASSERT_EQ(
      RegSetKeyValueW(HKEY_CLASSES_ROOT, L"Merovane.Probe\\CLSID", L"", REG_SZ, kId, sizeof kId),
      ERROR_SUCCESS);
  EXPECT_TRUE(IsComponentRegistered("Merovane.Probe"));
  EXPECT_EQ(RegDeleteTreeW(HKEY_CLASSES_ROOT, L"Merovane.Probe"), ERROR_SUCCESS);
}

}  // namespace
}  // namespace merovane::platform
