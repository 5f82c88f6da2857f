#include "link/channel_port.h"

#include "platform/clock.h"
#include "support/command_fixture.h"

namespace merovane::test {
namespace {

using ::testing::ElementsAre;

struct ChannelPortTest : CommandFixture {
  void SetUp() override {}
  std::string OpenLine() const {
    return "Open (Port = " + std::to_string(port) + ", Baudrate = 9600)";
  }
  Result Exchange() {
    handset.Expect(1, 1).Answer(1, 1, "7E");
    return phone.link.SendAndWaitSame({1, 1}, {}, 100).Why();
  }
};

TEST_F(ChannelPortTest, RefusesBadNumbersBeforeAnyChannelIsMade) {
  for (const auto& [number, rate] : {std::pair{0, 9600}, {-1, 9600}, {port, 0}, {port, -5}}) {
    EXPECT_EQ(phone.link.Open(number, rate), Result::InvalidParam);
  }
  EXPECT_EQ(handset.OpenedWith().port, 0u);
  EXPECT_EQ(phone.link.Close(), Result::PortNotOpen);
  EXPECT_EQ(usefulLog.File(), "");
}

TEST_F(ChannelPortTest, GivesTwoForAChannelThatCannotBeMadeOrOpened) {
  handset.FailCreate(true);
  EXPECT_EQ(phone.link.Open(port, 9600), Result::CannotOpenPort);
  handset.FailCreate(false);
  handset.FailOpen(true);
  for (const std::uint32_t mode : {0u, 1u}) {
    settings.receiveMode = mode;
    EXPECT_EQ(phone.link.Open(port, 9600), Result::CannotOpenPort);
    EXPECT_EQ(handset.ChannelsHeld(), 0);
    EXPECT_FALSE(phone.link.IsOpen());
  }
  EXPECT_THAT(Log(),
              ElementsAre(OpenLine(), "Error Code = 2 (SUCCESS)", OpenLine(),
                          "Error Code = 2 (SUCCESS)", OpenLine(), "Error Code = 2 (SUCCESS)"));
}

TEST_F(ChannelPortTest, IsLoggedFromOpenToClose) {
  settings.allLog = true;
  ASSERT_EQ(phone.link.Open(port, 9600), Result::Success);
  EXPECT_EQ(handset.OpenedWith().kind, 0u);
  EXPECT_EQ(handset.OpenedWith().port, static_cast<std::uint32_t>(port));
  EXPECT_EQ(handset.OpenedWith().baudRate, 9600u);
  EXPECT_EQ(Exchange(), Result::Success);
  EXPECT_EQ(phone.link.Close(), Result::Success);
  EXPECT_EQ(handset.ChannelsHeld(), 0);
  EXPECT_THAT(usefulLog.TakeText(),
              ElementsAre(OpenLine(), "Error Code = 0 (SUCCESS)", "Clear Port Buffer", "Close",
                          "Error Code = 0 (SUCCESS)"));
  EXPECT_THAT(allLog.Take(), ElementsAre(OpenLine(), "--> 7E 00 00 00 00 00 08 01 01 7E",
                                         "<-- 7E 00 00 00 00 00 09 01 01 7D 5E 7E", "Close"));
  // Appended to, after a separator.
  ASSERT_EQ(phone.link.Open(port, 9600), Result::Success);
  const std::string separator = "\r\n" + std::string(60, '-');
  const std::string whole = usefulLog.Whole();
  EXPECT_TRUE(whole.starts_with(separator));
  EXPECT_NE(whole.find(separator, 10), std::string::npos);
  // The folder's date is UTC.
  const platform::CalendarTime day = platform::UtcTime();
  char folder[40];
  std::snprintf(folder, sizeof folder, "%04d-%02d-%02d", day.year, day.month, day.day);
  EXPECT_EQ(usefulLog.File().parent_path().filename(), folder);
  EXPECT_EQ(usefulLog.File().parent_path().parent_path().filename(), "Log");
}

TEST_F(ChannelPortTest, IsClosedAtItsEndAtTheLatest) {
  settings.allLog = true;
  {
    PhoneLink link(environment, clock, handset.Library());
    ASSERT_EQ(link.Open(port, 9600), Result::Success);
  }
  EXPECT_FALSE(handset.IsOpen());
  EXPECT_EQ(handset.ChannelsHeld(), 0);
  EXPECT_THAT(allLog.Take(), ElementsAre(OpenLine(), "Close"));
}

TEST_F(ChannelPortTest, IsSilentWhileTheLogsAreOff) {
  settings.usefulLog = false;
  ASSERT_EQ(phone.link.Open(port, 9600), Result::Success);
  EXPECT_EQ(Exchange(), Result::Success);
  EXPECT_EQ(phone.link.Close(), Result::Success);
  EXPECT_EQ(usefulLog.File(), "");
  EXPECT_EQ(allLog.File(), "");
}

TEST_F(ChannelPortTest, StaysAsItIsWhenItIsOpenedAgain) {
  ASSERT_EQ(phone.link.Open(port, 9600), Result::Success);
  EXPECT_EQ(phone.link.Open(port, 9600), Result::PortAlreadyOpened);
  EXPECT_EQ(Exchange(), Result::Success);
  EXPECT_THAT(LogText(), ElementsAre(OpenLine(), "Error Code = 0 (SUCCESS)",
                                     "Error Code = 26 (SUCCESS)", "Clear Port Buffer"));
}

TEST_F(ChannelPortTest, RecordsReceivedBytesAtTheEndOfAFile) {
  directory.Write("rec.bin", "before");
  settings.SaveReceivedData(true, directory / "rec.bin");
  ASSERT_EQ(phone.link.Open(port, 9600), Result::Success);
  EXPECT_EQ(Exchange(), Result::Success);
  const Bytes answer = Hex("7E 00 00 00 00 00 09 01 01 7D 5E 7E");
  const std::string expected = "before" + std::string(answer.begin(), answer.end());
  EXPECT_EQ(FileText(directory / "rec.bin"), expected);
  settings.SaveReceivedData(false, {});
  EXPECT_EQ(Exchange(), Result::Success);
  EXPECT_EQ(phone.link.Close(), Result::Success);
  EXPECT_EQ(FileText(directory / "rec.bin"), expected);
}

TEST_F(ChannelPortTest, WorksWithARecordingThatCannotBeWritten) {
  directory.Write("file", "x");
  settings.SaveReceivedData(true, directory / "file" / "below");
  ASSERT_EQ(phone.link.Open(port, 9600), Result::Success);
  EXPECT_EQ(Exchange(), Result::Success);
}

TEST_F(ChannelPortTest, LetsWaitsEndWhileAScopeSaysSo) {
  ASSERT_EQ(phone.link.Open(port, 9600), Result::Success);
  platform::Event cancel;
  const std::uint32_t start = clock.NowMs();
  {
    const PhoneLink::CancelScope scope(phone.link, cancel);
    handset.Say(1, 1, "41", 95);
    EXPECT_TRUE(phone.link.ReceiveFrame(100));
    cancel.Set();
    EXPECT_EQ(phone.link.ReceiveFrame(100'000).Why(), Result::NoData);
    EXPECT_EQ(phone.link.WaitForAnswer({1, 1}, 100'000).Why(), Result::NoAnswer);
    phone.link.Sleep(100'000);
    EXPECT_TRUE(phone.link.StartDeadline(100'000).Passed());
    EXPECT_EQ(clock.NowMs() - start, 95u);
    EXPECT_FALSE(phone.link.WasCutShort());
  }
  EXPECT_EQ(Exchange(), Result::Success);
  phone.link.Sleep(205);
  EXPECT_EQ(clock.NowMs() - start, 300u);
}

TEST_F(ChannelPortTest, GivesOneToWhateverIsAskedAfterItsEnd) {
  ASSERT_EQ(phone.link.Open(port, 9600), Result::Success);
  EXPECT_FALSE(phone.link.WasCutShort());
  phone.link.End();
  const std::uint32_t start = clock.NowMs();
  EXPECT_EQ(phone.link.SendAndWaitSame({1, 1}, {}, 1000).Why(), Result::PortNotOpen);
  EXPECT_EQ(phone.link.WaitForAnswer({1, 1}, 1000).Why(), Result::PortNotOpen);
  EXPECT_EQ(phone.link.ReceiveFrame(1000).Why(), Result::PortNotOpen);
  EXPECT_EQ(phone.link.WriteRaw(Hex("01")), Result::PortNotOpen);
  std::array<std::uint8_t, kHeaderBytes> header;
  EXPECT_EQ(phone.link.ReceiveStartFrame(header, 1000), Result::PortNotOpen);
  phone.link.Sleep(1000);
  EXPECT_EQ(clock.NowMs(), start);
  EXPECT_TRUE(phone.link.WasCutShort());
  EXPECT_EQ(phone.link.Close(), Result::Success);
  EXPECT_EQ(phone.link.Open(port, 9600), Result::PortNotOpen);
}

}  // namespace
}  // namespace merovane::test
