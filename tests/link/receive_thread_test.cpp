#include <filesystem>

#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using ::testing::ElementsAre;

constexpr std::uint32_t kPatienceMs = 20000;

std::size_t Threads() {
  const auto tasks = std::filesystem::directory_iterator("/proc/self/task");
  return static_cast<std::size_t>(std::distance(begin(tasks), end(tasks)));
}

// The system lists a thread for a moment after it was waited for.
std::size_t ThreadsOnceThereAre(std::size_t wanted) {
  const platform::Deadline deadline(platform::SystemClock(), kPatienceMs);
  while (Threads() != wanted && !deadline.Passed()) platform::SystemClock().SleepMs(1);
  return Threads();
}

// Threads run on the system's time, and so does this phone.
struct ReceiveThread : CommandFixture {
  void SetUp() override {
    settings.allLog = true;
    settings.receiveMode = 1;
    ASSERT_EQ(real.link.Open(port, 9600), Result::Success);
    static_cast<void>(Log());
    static_cast<void>(allLog.Take());
  }
  Result Receive(std::uint32_t timeoutMs) {
    const Frame frame = real.link.ReceiveFrame(timeoutMs);
    received = ToHex(frame.Bytes());
    return frame.Why();
  }

  Phone real{environment, platform::SystemClock(), handset.Library()};
  std::string received;
};

TEST_F(ReceiveThread, CarriesExchangesIntoTheLogsAndTheRecording) {
  settings.SaveReceivedData(true, directory / "rec.bin");
  ASSERT_EQ(real.link.Close(), Result::Success);
  ASSERT_EQ(real.link.Open(port, 9600), Result::Success);
  static_cast<void>(Log());
  static_cast<void>(allLog.Take());
  handset.Expect(1, 1).Answer(1, 1, "41");
  EXPECT_EQ(real.link.SendAndWaitSame({1, 1}, {}, kPatienceMs).Why(), Result::Success);
  EXPECT_THAT(Log(), ElementsAre("--> 7E 00 00 00 00 00 08 01 01 7E",
                                 "<-- 7E 00 00 00 00 00 09 01 01 41 7E"));
  // What the thread took is in the log by the time that the port is closed, at the latest.
  ASSERT_EQ(real.link.Close(), Result::Success);
  EXPECT_THAT(allLog.Take(),
              ::testing::UnorderedElementsAre("--> 7E 00 00 00 00 00 08 01 01 7E",
                                              "<-- 7E 00 00 00 00 00 09 01 01 41 7E", "Close"));
  EXPECT_EQ(FileText(directory / "rec.bin").size(), 11u);
  EXPECT_EQ(handset.Clears(), 0);
  EXPECT_FALSE(real.link.IsAssert());
}

TEST_F(ReceiveThread, DropsWhatItFetchedBeforeARequest) {
  for (const std::uint32_t modeMeanwhile : {1u, 0u}) {
    settings.receiveMode = modeMeanwhile;
    // One chunk: taking its first frame leaves the second where the thread put it.
    handset.SayRaw(Joined(WireFrame(true, 5, 5, Bytes(60, 0)), WireFrame(true, 1, 1, Hex("01"))));
    ASSERT_EQ(Receive(kPatienceMs), Result::Success);
    handset.Expect(1, 1).Answer(1, 1, "02");
    EXPECT_EQ(ToHex(real.link.SendAndWaitSame({1, 1}, {}, kPatienceMs).Payload()), "02")
        << "receive mode " << modeMeanwhile;
  }
}

TEST_F(ReceiveThread, DropsWhatItHadYetToFetchAtARequest) {
  for (int i = 0; i < 3000; ++i) handset.Say(1, 1, "01");
  handset.Expect(1, 1).Answer(1, 1, "02");
  EXPECT_EQ(ToHex(real.link.SendAndWaitSame({1, 1}, {}, kPatienceMs).Payload()), "02");
}

TEST_F(ReceiveThread, GivesSixInSilence) {
  EXPECT_EQ(Receive(20), Result::NoData);
  handset.Expect(1, 1).Silent();
  EXPECT_EQ(real.link.SendAndWaitSame({1, 1}, {}, 20).Why(), Result::NoAnswer);
  handset.Say(1, 2, "0102");
  EXPECT_EQ(Receive(kPatienceMs), Result::Success);
  EXPECT_EQ(received, "00 00 00 00 00 0A 01 02 01 02");
}

TEST_F(ReceiveThread, EndsWithItsPort) {
  const std::size_t open = Threads();
  EXPECT_EQ(real.link.Close(), Result::Success);
  EXPECT_EQ(ThreadsOnceThereAre(open - 1), open - 1);
  for (int i = 0; i < 20; ++i) {
    ASSERT_EQ(real.link.Open(port, 9600), Result::Success);
    ASSERT_EQ(real.link.Close(), Result::Success);
  }
  EXPECT_EQ(ThreadsOnceThereAre(open - 1), open - 1);
}

TEST_F(ReceiveThread, LeavesFloodsWithinTheRing) {
  for (int i = 0; i < 2000; ++i) handset.SayRaw(Bytes(100, 0x55));
  handset.Say(7, 7, "00");
  Result result = Result::NoFrame;
  for (int tries = 0; tries < 100 && result != Result::Success; ++tries) result = Receive(200);
  EXPECT_EQ(result, Result::Success);
  EXPECT_EQ(received, "00 00 00 00 00 09 07 07 00");
}

TEST_F(ReceiveThread, GoesOnWhenTheDiskIsFull) {
  ASSERT_EQ(real.link.Close(), Result::Success);
  const std::filesystem::path full = "/dev/full";
  const auto logs = {usefulLog.File(), allLog.File()};
  for (const auto& log : logs) {
    std::filesystem::remove(log);
    std::filesystem::create_symlink(full, log);
  }
  settings.SaveReceivedData(true, full);
  for (const std::uint32_t mode : {1u, 0u}) {
    settings.receiveMode = mode;
    ASSERT_EQ(real.link.Open(port, 9600), Result::Success);
    handset.Expect(1, 1).Answer(1, 1);
    EXPECT_EQ(real.link.SendAndWaitSame({1, 1}, {}, kPatienceMs).Why(), Result::Success);
    EXPECT_EQ(real.link.Close(), Result::Success);
  }
  for (const auto& log : logs) EXPECT_TRUE(std::filesystem::is_symlink(log)) << log;
}

}  // namespace
}  // namespace merovane::test
