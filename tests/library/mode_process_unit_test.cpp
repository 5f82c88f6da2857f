#include <atomic>
#include <deque>
#include <future>
#include <mutex>
#include <thread>

#include "library/phone_object.h"
#include "platform/message_queue.h"
#include "support/command_fixture.h"
#include "support/event.h"

namespace merovane::test {
namespace {

using library::ModeProcess;
using library::PhoneObject;

constexpr const char* kStartFrame = "7E 00 00 00 00 00 08 FE 01 7E";
constexpr std::chrono::seconds kPatience{20};

// Arrivals as a test decides them.
class FakeMonitor final : public platform::DeviceMonitor {
 public:
  explicit FakeMonitor(const ScriptedHandset& handset) : handset_(handset) {}

  void Start() override {
    const std::lock_guard lock(mutex_);
    arrivals_.clear();
    heardAtStart_ = handset_.Heard().size();
    ++starts_;
  }
  bool TakeArrival(std::int32_t& port) override {
    const std::lock_guard lock(mutex_);
    if (starts_ == 0 || arrivals_.empty()) return false;
    port = arrivals_.front();
    arrivals_.pop_front();
    return true;
  }
  void Arrive(std::int32_t port) {
    const std::lock_guard lock(mutex_);
    arrivals_.push_back(port);
  }
  int Starts() {
    const std::lock_guard lock(mutex_);
    return starts_;
  }
  std::size_t HeardAtStart() const { return heardAtStart_; }

 private:
  const ScriptedHandset& handset_;
  std::mutex mutex_;
  std::deque<std::int32_t> arrivals_;
  std::size_t heardAtStart_ = 0;
  int starts_ = 0;
};

struct ModeProcessTest : CommandFixture {
  ~ModeProcessTest() override {
    object->modeProcess.Stop();
    static_cast<void>(object->link.Close());
  }
  void OpenPort() { ASSERT_EQ(object->link.Open(port, 115200), Result::Success); }
  void SetUp() override { OpenPort(); }
  ModeProcess::Request Request(std::uint32_t mode, std::uint32_t timeLimitMs = 5000) {
    ModeProcess::Request request;
    request.mode = mode;
    request.event = callersEvent;
    request.timeLimitMs = timeLimitMs;
    return request;
  }
  Result Start(const ModeProcess::Request& request) {
    return object->modeProcess.Start(object, request);
  }
  void ExpectMode(std::uint8_t mode) { handset.Expect(0xFE, mode).Answer(0xFE, mode); }
  void ExpectCaught() {
    EXPECT_TRUE(event.IsSet(kPatience));
    object->modeProcess.Stop();
  }

  const Event event{};
  const platform::CallerEvent callersEvent{event.Handle()};
  std::shared_ptr<PhoneObject> object =
      std::make_shared<PhoneObject>(environment, clock, handset.Library());
};

TEST_F(ModeProcessTest, PutsABootingHandsetIntoTheMode) {
  callersEvent.Set();
  handset.Expect(0xFE, 0x83).Sequence(0x11223344).Answer(0xFE, 0x83);
  auto request = Request(3, 0);
  request.sequence = 0x11223344;
  EXPECT_EQ(Start(request), Result::Success);
  EXPECT_FALSE(event.IsSet()) << "left over from before";
  handset.SayRaw("99 7E 7E");
  handset.SayRaw(kStartFrame);
  ExpectCaught();
  // Whatever the mode command gives.
  callersEvent.Reset();
  handset.SayRaw(kStartFrame);
  handset.Expect(0xFE, 0x83).Silent();
  EXPECT_EQ(Start(Request(3)), Result::Success);
  ExpectCaught();
}

TEST_F(ModeProcessTest, RunReturnsWhenTheHandsetIsCaughtOrTheLimitPassed) {
  handset.SayRaw(kStartFrame, 2900);
  ExpectMode(0x80);
  EXPECT_EQ(object->modeProcess.Run(object, Request(0, 3000)), Result::Success);
  // Attempts take their whole second, the last one too.
  for (const auto& [limitMs, takesMs] : {std::pair(1u, 1000u), {3500u, 4000u}}) {
    const std::uint32_t before = clock.NowMs();
    EXPECT_EQ(object->modeProcess.Run(object, Request(0, limitMs)), Result::EnterModeFailed);
    EXPECT_EQ(clock.NowMs() - before, takesMs);
  }
  handset.SayRaw(kStartFrame, 1990);
  ExpectMode(0x80);
  EXPECT_EQ(object->modeProcess.Run(object, Request(0, 1100)), Result::Success);
}

TEST_F(ModeProcessTest, StopEndsAWaitWithoutEndAndThePhoneWorksOn) {
  EXPECT_EQ(Start(Request(3, 0)), Result::Success);
  object->modeProcess.Stop();
  object->modeProcess.Stop();
  EXPECT_FALSE(event.IsSet());
  handset.Expect(12, 1).Answer(12, 1);
  EXPECT_TRUE(object->link.SendAndWaitSame({12, 1}, {}, 100));
  // A second start ends the first one.
  EXPECT_EQ(Start(Request(3, 0)), Result::Success);
  ExpectMode(0x84);
  EXPECT_EQ(Start(Request(4, 0)), Result::Success);
  handset.SayRaw(kStartFrame);
  ExpectCaught();
}

TEST_F(ModeProcessTest, RunLeavesTheQuitMessageToItsCaller) {
  platform::CreateMessageQueue();
  platform::PostMessageToThread(platform::CurrentThreadId(), platform::kQuitMessage, 7, 0);
  EXPECT_EQ(object->modeProcess.Run(object, Request(0, 500)), Result::EnterModeFailed);
  platform::Message message;
  ASSERT_TRUE(platform::TakeMessage(message, 0));
  EXPECT_EQ(message.id, platform::kQuitMessage);
  EXPECT_EQ(message.first, 7u);
}

TEST_F(ModeProcessTest, MayOutliveEveryOtherOwnerOfItsPhone) {
  ASSERT_EQ(object->link.Close(), Result::Success);
  auto other = std::make_shared<PhoneObject>(environment, clock, handset.Library());
  const std::weak_ptr<PhoneObject> watched = other;
  ASSERT_EQ(other->link.Open(port, 9600), Result::Success);
  EXPECT_EQ(other->modeProcess.Start(other, Request(3, 0)), Result::Success);
  other.reset();
  ExpectMode(0x83);
  handset.SayRaw(kStartFrame);
  EXPECT_TRUE(event.IsSet(kPatience));
  // The worker ends the phone, and with it the channel.
  while (!watched.expired() || handset.ChannelsHeld() > 0) std::this_thread::yield();
}

struct ArrivingPort : ModeProcessTest {
  void SetUp() override {}
  ModeProcess::Request PortRequest(std::uint32_t mode) {
    ModeProcess::Request request = Request(mode);
    request.waitForPort = true;
    request.monitor = monitor;
    return request;
  }
  // Catches the handset while these ports arrive; the port found.
  std::int32_t PortFound(const ModeProcess::Request& request,
                         std::initializer_list<std::int32_t> arrivals) {
    EXPECT_EQ(Start(request), Result::Success);
    EXPECT_EQ(object->modeProcess.PortFound(), 0);
    for (const std::int32_t arrival : arrivals) monitor->Arrive(arrival);
    ExpectCaught();
    return object->modeProcess.PortFound();
  }

  std::shared_ptr<FakeMonitor> monitor = std::make_shared<FakeMonitor>(handset);
};

TEST_F(ArrivingPort, IsOpenedForTheModeAndClosedAndAwaitedOnceMore) {
  ExpectMode(0x83);
  EXPECT_EQ(PortFound(PortRequest(3), {port, port + 1}), port + 1);
  EXPECT_EQ(handset.OpenedWith().port, static_cast<std::uint32_t>(port));
  EXPECT_EQ(handset.OpenedWith().baudRate, 115200u);
  EXPECT_FALSE(object->link.IsOpen());
}

TEST_F(ArrivingPort, IsNotAwaitedOnceMoreForModeTen) {
  ExpectMode(0x8A);
  EXPECT_EQ(PortFound(PortRequest(10), {port}), port);
}

TEST_F(ArrivingPort, CountsAnewAfterAModeCommandThatFailed) {
  // It takes 4000 of the 5000 ms.
  handset.Expect(0xFE, 0x83).Silent();
  ExpectMode(0x83);
  EXPECT_EQ(PortFound(PortRequest(3), {port, port, port}), port);
}

TEST_F(ArrivingPort, OfAnotherNumberThanTheExpectedIsIgnored) {
  ExpectMode(0x83);
  auto request = PortRequest(3);
  request.expectedPort = port;
  EXPECT_EQ(PortFound(request, {port + 1, port + 1, port, port + 2, port}), port);
  EXPECT_TRUE(object->link.IsOpen());
}

TEST_F(ArrivingPort, ThatCannotBeOpenedEndsTheWaiting) {
  handset.FailOpen(true);
  auto request = PortRequest(3);
  request.timeLimitMs = 0;
  std::thread arrival([&] {
    while (monitor->Starts() == 0) std::this_thread::yield();
    monitor->Arrive(port);
  });
  EXPECT_EQ(object->modeProcess.Run(object, request), Result::EnterModeFailed);
  arrival.join();
  EXPECT_FALSE(event.IsSet());
}

TEST_F(ArrivingPort, IsLetGoOfWhenTheWaitingIsStoppedWhileItOpens) {
  std::promise<void> opening;
  handset.WhileItOpens([&] {
    opening.set_value();
    while (!object->link.StartDeadline(100'000).Passed()) std::this_thread::yield();
  });
  ASSERT_EQ(Start(PortRequest(3)), Result::Success);
  monitor->Arrive(port);
  opening.get_future().wait();
  object->modeProcess.Stop();
  EXPECT_FALSE(object->link.IsOpen());
}

TEST_F(ArrivingPort, ThatNeverComesEndsByTheLimit) {
  std::atomic<bool> ended{false};
  std::thread time([&] {
    while (!ended) clock.SleepMs(1);
  });
  EXPECT_EQ(object->modeProcess.Run(object, PortRequest(3)), Result::EnterModeFailed);
  ended = true;
  time.join();
}

// As when a message box inside runs a handler of the caller's.
TEST(Turnstile, LetsAThreadThatIsInsideEnterAgain) {
  library::Turnstile turnstile;
  {
    const library::Turn turn(turnstile);
    ASSERT_TRUE(turn);
    EXPECT_TRUE(library::Turn(turnstile));
    EXPECT_FALSE(turnstile.End(0)) << "still inside";
    EXPECT_FALSE(library::Turn(turnstile));
  }
  EXPECT_TRUE(turnstile.End(0));
}

struct ResetProcess : ArrivingPort {
  void SetUp() override { OpenPort(); }
  Result Reset(bool throughPort, std::uint32_t kind = 1) {
    return object->modeProcess.Reset(object, {.throughPort = throughPort,
                                              .rebootKind = kind,
                                              .event = callersEvent,
                                              .timeLimitMs = 700,
                                              .expectedPort = {},
                                              .monitor = monitor});
  }
};

TEST_F(ResetProcess, RestartsPlainlyWithinTheCallersLimit) {
  EXPECT_EQ(object->modeProcess.Reset(object, {}), Result::InvalidParam);
  EXPECT_EQ(OperationOf(Result::InvalidParam), 183u);
  handset.Expect(12, 0).After(699).Answer(12, 0);
  EXPECT_EQ(Reset(false), Result::Success);
  EXPECT_TRUE(event.IsSet());
  callersEvent.Reset();
  handset.Expect(12, 0).Silent();
  EXPECT_EQ(Reset(false), Result::NoAnswer);
  EXPECT_FALSE(event.IsSet());
}

TEST_F(ResetProcess, SendsTheCodeOfTheRebootKind) {
  for (const auto& [kind, code] :
       {std::pair<std::uint32_t, std::uint8_t>{1, 3}, {9, 17}, {10, 0}}) {
    SCOPED_TRACE(kind);
    callersEvent.Reset();
    handset.Expect(12, code).Answer(12, code, "00 00");
    EXPECT_EQ(Reset(true, kind), Result::Success);
    EXPECT_TRUE(event.IsSet());
    EXPECT_TRUE(object->link.IsOpen());
  }
}

TEST_F(ResetProcess, ReopensThePortOnWhichTheHandsetComesBack) {
  handset.Expect(12, 3).Refuse();
  EXPECT_EQ(Reset(true), Result::Refused);
  EXPECT_TRUE(object->link.IsOpen());
  const std::size_t heard = handset.Heard().size();
  handset.Expect(12, 3).Answer(12, 3, "00");
  EXPECT_EQ(Reset(true), Result::Success);
  EXPECT_EQ(monitor->HeardAtStart(), heard) << "the monitor missed the restart";
  EXPECT_FALSE(event.IsSet());
  // A second reset, of a handset that is away, ends the first one's wait.
  EXPECT_NE(Reset(true), Result::Success);
  EXPECT_FALSE(object->link.IsOpen());
  ASSERT_EQ(object->link.Open(port, 9600), Result::Success);
  handset.Expect(12, 3).Answer(12, 3, "00");
  EXPECT_EQ(Reset(true), Result::Success);
  monitor->Arrive(port + 4);
  ExpectCaught();
  EXPECT_TRUE(object->link.IsOpen());
  EXPECT_EQ(handset.OpenedWith().port, static_cast<std::uint32_t>(port + 4));
}

}  // namespace
}  // namespace merovane::test
