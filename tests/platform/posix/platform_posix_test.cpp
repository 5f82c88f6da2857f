// What only Linux has: modes and links, pipes, descriptors, signals, device nodes.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <climits>
#include <ctime>
#include <functional>
#include <numeric>
#include <thread>
#include <utility>

#include "platform/clock.h"
#include "platform/console.h"
#include "platform/device_handle.h"
#include "platform/event.h"
#include "platform/files.h"
#include "platform/profile_file.h"
#include "platform/pseudo_terminal.h"
#include "platform/serial_ports.h"
#include "platform/system.h"
#include "platform/text.h"
#include "platform/thread.h"
#include "support/temp_directory.h"

namespace merovane::platform {
namespace {

using merovane::test::FileText;
using merovane::test::TempDirectory;
using test::SetVariable;

constexpr std::string_view kNew = "new";

mode_t ModeOf(const std::filesystem::path& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0);
  return status.st_mode & 07777;
}

TEST(PosixFiles, KeepModeAndLinkWhateverIsDoneToThem) {
  const TempDirectory directory;
  const auto real = directory / "real";
  directory.Write("real", "old");
  chmod(real.c_str(), 0775);
  EXPECT_TRUE(SetReadOnly(real, true));
  EXPECT_EQ(ModeOf(real), 0555U);
  EXPECT_TRUE(SetReadOnly(real, false));
  EXPECT_EQ(ModeOf(real), 0755U);

  chmod(real.c_str(), 0640);
  std::filesystem::create_symlink("real", directory / "link");
  ASSERT_TRUE(ReplaceFile(directory / "link", kNew));
  EXPECT_TRUE(std::filesystem::is_symlink(directory / "link"));
  EXPECT_EQ(FileText(real), kNew);
  EXPECT_EQ(ModeOf(real), 0640U);
  if (getuid() == 0) {
    constexpr uid_t kNobody = 65534;
    ASSERT_EQ(chown(real.c_str(), kNobody, kNobody - 1), 0);
    ASSERT_TRUE(ReplaceFile(real, kNew));
    struct stat status {};
    ASSERT_EQ(stat(real.c_str(), &status), 0);
    EXPECT_EQ(std::pair(status.st_uid, status.st_gid), std::pair(kNobody, kNobody - 1));
  }

  const auto longest = directory / std::string(NAME_MAX, 'n');
  EXPECT_TRUE(ReplaceFile(longest, kNew));
  EXPECT_EQ(FileText(longest), kNew);
  EXPECT_TRUE(ReplaceFile("/dev/null", kNew));
  EXPECT_FALSE(ReplaceFile("/dev/full", kNew));
}

// Runs `body` in a process of its own, as no privileged user and with files of 4096 bytes at most.
// True when it returned true.
bool InLimitedChild(bool (*body)(const std::filesystem::path&), const std::filesystem::path& path) {
  const pid_t child = fork();
  if (child == 0) {
    constexpr uid_t kNobody = 65534;
    const rlimit limit{4096, 4096};
    signal(SIGXFSZ, SIG_IGN);
    const bool limited =
        setrlimit(RLIMIT_FSIZE, &limit) == 0 && (getuid() != 0 || setuid(kNobody) == 0);
    _exit(limited && body(path) ? 0 : 1);
  }
  int status = 0;
  return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(PosixFiles, StandWholeWhenTheNewContentDoesNotFit) {
  const TempDirectory directory;
  directory.Write("a", "old content");
  chmod((directory / "a").c_str(), 0666);
  chmod(directory.Path().c_str(), 0777);
  EXPECT_TRUE(InLimitedChild(
      [](const std::filesystem::path& path) {
        AppendFile log;
        return !ReplaceFile(path, std::string(5000, 'x')) && FileText(path) == "old content" &&
               ReplaceFile(path, std::string(4096, 'y')) && log.Open(path) && !log.Write(kNew);
      },
      directory / "a"));
  EXPECT_EQ(FileText(directory / "a"), std::string(4096, 'y'));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.Path()), {}), 1);

  // Written in place where the directory takes no other file.
  chmod((directory / "a").c_str(), 0666);
  chmod(directory.Path().c_str(), 0555);
  EXPECT_TRUE(InLimitedChild(
      [](const std::filesystem::path& path) {
        return ReplaceFile(path, kNew) && FileText(path) == kNew &&
               !ReplaceFile(path, std::string(5000, 'x')) && FileText(path) == kNew &&
               !ReplaceFile(path.parent_path() / "absent", kNew);
      },
      directory / "a"));
  chmod(directory.Path().c_str(), 0755);
}

TEST(PosixFiles, AreNotWaitedForWhenTheyArePipes) {
  const TempDirectory directory;
  const auto pipe = directory / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0666), 0);
  EXPECT_EQ(ProfileFile::Load(pipe).Integer("S", "K", 3), 3U);
  EXPECT_FALSE(ReplaceFile(pipe, kNew));
}

TEST(PosixEvent, IsAReadableDescriptorForDevicesWhileItIsSet) {
  Event event(Event::For::Devices);
  pollfd polled{static_cast<int>(event.Handle()), POLLIN, 0};
  EXPECT_EQ(poll(&polled, 1, 0), 0);
  event.Set();
  EXPECT_EQ(poll(&polled, 1, 0), 1);
  event.Reset();
  EXPECT_EQ(poll(&polled, 1, 0), 0);
}

TEST(PosixCallerEvent, NeverWaitsForAFullOrAnEmptyCounter) {
  const int full = eventfd(0, 0);
  eventfd_write(full, UINT64_MAX - 1);
  CallerEvent(full).Set();
  CallerEvent(full).Reset();
  CallerEvent(full).Reset();
  CallerEvent(full).Set();
  // A number that is no descriptor must not be cut down to one that is.
  if constexpr (sizeof(std::intptr_t) > sizeof(int)) {
    const CallerEvent beyond((std::intptr_t{1} << 32) + full);
    beyond.Set();
    EXPECT_FALSE(beyond.IsNull());
  }
  eventfd_t count = 0;
  EXPECT_EQ(eventfd_read(full, &count), 0);
  EXPECT_EQ(count, 1U);
  close(full);

  const int semaphore = eventfd(3, EFD_SEMAPHORE | EFD_NONBLOCK);
  CallerEvent(semaphore).Reset();
  EXPECT_EQ(eventfd_read(semaphore, &count), -1);
  close(semaphore);

  const int endless = open("/dev/zero", O_RDONLY);
  CallerEvent(endless).Reset();
  close(endless);
  EXPECT_TRUE(CallerEvent(-1).IsNull());
}

TEST(PosixThread, LeavesSignalsToTheHostProgram) {
  sigset_t blocked;
  sigemptyset(&blocked);
  Thread thread;
  ASSERT_TRUE(thread.Start([&blocked] { pthread_sigmask(SIG_BLOCK, nullptr, &blocked); }));
  ASSERT_TRUE(thread.WaitMs(60'000));
  EXPECT_EQ(sigismember(&blocked, SIGTERM), 1);
  EXPECT_EQ(sigismember(&blocked, SIGALRM), 1);
  pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
  EXPECT_EQ(sigismember(&blocked, SIGTERM), 0);
}

TEST(PosixConsole, IsStandardOutputWhileShown) {
  testing::internal::CaptureStdout();
  SetConsole(ConsoleState::Hidden);
  WriteConsole("hidden");
  SetConsole(ConsoleState::Shown);
  WriteConsole("shown\r\n");
  SetConsole(ConsoleState::Off);
  WriteConsole("off");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "shown\r\n");

  testing::internal::CaptureStderr();
  ShowMessageBox("Can't open file a.txt!", "Error");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Error: Can't open file a.txt!\n");
}

TEST(PosixText, TurnsUtf16IntoUtf8) {
  EXPECT_EQ(NarrowFromUtf16(u"a\u00E9\u20AC\U0001F4F1"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x93\xB1");
  const std::u16string unpaired{u'x', char16_t{0xD800}, u'y', char16_t{0xDC00}, char16_t{0xD801}};
  EXPECT_EQ(NarrowFromUtf16(unpaired), "x\xEF\xBF\xBDy\xEF\xBF\xBD\xEF\xBF\xBD");
}

std::string Read(int descriptor, std::size_t count) {
  std::string bytes(count, ' ');
  for (std::size_t got = 0; got < count;) {
    const ssize_t more = read(descriptor, bytes.data() + got, count - got);
    if (more <= 0) return "nothing";
    got += static_cast<std::size_t>(more);
  }
  return bytes;
}

// The system passes bytes on in a moment of its own.
bool Soon(const std::function<bool()>& holds) {
  for (int i = 0; !holds() && i < 10'000; ++i) SystemClock().SleepMs(1);
  return holds();
}

TEST(PosixPseudoTerminal, PassesEveryByteAndTellsOfTheOtherEnd) {
  std::string whyNot;
  const auto terminal = MakePseudoTerminal(whyNot);
  ASSERT_TRUE(terminal) << whyNot;
  const auto ours = static_cast<int>(terminal->Handle());
  EXPECT_FALSE(terminal->Look().open || terminal->Look().hasBytes);
  std::string all(256, ' ');
  std::iota(all.begin(), all.end(), '\0');

  const int user = open(terminal->DeviceName().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  EXPECT_TRUE(terminal->Look().open);
  for (const auto& [from, to] : {std::pair(ours, user), std::pair(user, ours)}) {
    EXPECT_EQ(write(from, all.data(), all.size()), 256);
    EXPECT_EQ(Read(to, all.size()), all);
  }
  EXPECT_EQ(write(ours, all.data(), all.size()), 256);
  EXPECT_TRUE(Soon([&] { return terminal->Unread() == all.size(); }));
  EXPECT_TRUE(terminal->DropUnread());
  EXPECT_EQ(terminal->Unread(), 0U);
  EXPECT_EQ(write(user, "x", 1), 1);
  close(user);
  EXPECT_TRUE(Soon([&] { return !terminal->Look().open && terminal->Look().hasBytes; }));
}

TEST(PosixDeviceHandle, IsGivenAgainAndTellsWhatIsUnsent) {
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
  const auto second = static_cast<int>(SecondHandle(ends[0]));
  close(ends[0]);
  EXPECT_EQ(UnsentBytes(second), 0U);
  EXPECT_EQ(write(second, "abc", 3), 3);
  EXPECT_GT(UnsentBytes(second), 0U);
  EXPECT_EQ(Read(ends[1], 3), "abc");
  EXPECT_EQ(UnsentBytes(second), 0U);
  for (const int each : {second, ends[1]}) close(each);
  EXPECT_EQ(SecondHandle(second), -1);
  EXPECT_EQ(UnsentBytes(second), 0U);
}

TEST(PosixSerialPorts, TellADeviceFromTheOneThatTookItsPlace) {
  const TempDirectory directory;
  const auto link = directory / "port";
  SetVariable("CASSORIND_COM231", link.c_str());
  // A pseudo-terminal and a link that names it, as simulated handsets make them.
  std::string whyNot;
  std::unique_ptr<PseudoTerminal> terminal;
  const auto tick = [] {
    timespec now{};
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return now.tv_nsec;
  };
  const auto plug = [&] {
    // Files made within one tick of the system's clock bear the same time.
    for (const auto before = tick(); tick() == before;) std::this_thread::yield();
    terminal.reset();
    terminal = MakePseudoTerminal(whyNot);
    std::filesystem::remove(link);
    std::filesystem::create_symlink(terminal->DeviceName(), link);
  };
  SerialPorts ports;
  plug();
  const auto first = ports.Present();
  ASSERT_TRUE(first.contains(231));
  EXPECT_EQ(ports.Present(), first);
  chmod(terminal->DeviceName().c_str(), 0660);
  EXPECT_EQ(ports.Present(), first) << "a change of access rights is no arrival";

  plug();
  const auto second = ports.Present();
  ASSERT_TRUE(second.contains(231));
  EXPECT_NE(second.at(231), first.at(231));

  // The same name without a link between: only the node's times tell.
  const std::string name = terminal->DeviceName();
  SetVariable("CASSORIND_COM231", name.c_str());
  const auto third = ports.Present();
  plug();
  if (terminal->DeviceName() == name) {
    EXPECT_NE(ports.Present().at(231), third.at(231));
  }
  terminal.reset();
  EXPECT_FALSE(ports.Present().contains(231));
  SetVariable("CASSORIND_COM231", nullptr);
}

TEST(PosixPaths, AreAbsoluteFromTheRootOnly) {
  EXPECT_TRUE(IsAbsolutePath("/x"));
  for (const char* const path : {"", "x", "\\x", "D:\\x", "D:/x", "\\\\server\\x"}) {
    EXPECT_FALSE(IsAbsolutePath(path)) << path;
  }
}

TEST(PosixSerialPorts, AreTheStandardDevicesWhereNothingElseIsNamed) {
  const bool exists = std::filesystem::exists("/dev/ttyS0");
  SerialPorts ports;
  EXPECT_EQ(ports.Present().contains(1), exists);
  SetVariable("CASSORIND_COM1", "/nonexistent/port");
  EXPECT_FALSE(ports.Present().contains(1));
  for (const char* silent : {"", static_cast<const char*>(nullptr)}) {
    SetVariable("CASSORIND_COM1", silent);
    EXPECT_EQ(ports.Present().contains(1), exists);
  }
}

}  // namespace
}  // namespace merovane::platform
