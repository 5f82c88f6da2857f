// Each cause of a port that does not open, and of an answer that does not come, is told apart.
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "merovane/diagnostics.h"
#include "support/child_program.h"
#include "support/station.h"
#include "support/temp_directory.h"

namespace merovane::test {
namespace {

using ::testing::HasSubstr;
using ::testing::StrEq;

constexpr std::uint32_t kLimitMs = 100;
constexpr std::uint8_t kStorageType = 13;

Merovane_Failure LastFailure(std::int32_t port) {
  Merovane_Failure failure{};
  failure.struct_bytes = sizeof failure;
  EXPECT_EQ(Merovane_LastFailure(port, &failure), 1);
  return failure;
}

struct FailureTest : StationTest {
  ~FailureTest() override { unsetenv(kVariable); }

  static void Name(const std::string& device) { setenv(kVariable, device.c_str(), 1); }

  // What is told when the port cannot be opened.
  static Merovane_Failure Refused(const std::string& device, std::int32_t rate = 115200) {
    Name(device);
    EXPECT_EQ(QV_BeginPhoneTest(kPort, rate), PC_ERR_CANNOT_OPEN_PORT) << device;
    return LastFailure(kPort);
  }

  static std::int32_t Read() {
    std::uint8_t data[4] = {};
    std::uint32_t length = 0;
    return QV_ReadFlash_MT(kPort, 1, data, 4, &length, kLimitMs);
  }
  static Merovane_Failure Unanswered() {
    EXPECT_EQ(Read(), PC_ERR_NO_ANSWER);
    return LastFailure(kPort);
  }
  static void Begin() { ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), PC_ERR_SUCCESS); }

  static constexpr const char* kVariable = "CASSORIND_COM7";
  TempDirectory folder;
};

TEST_F(FailureTest, TellsWhyAPortDoesNotOpen) {
  const std::string file = folder / "file";
  const std::string pipe = folder / "pipe";
  std::ofstream(file) << "x";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const std::string longLabel = "socket://" + std::string(64, 'x') + ".invalid:5000";
  const struct {
    std::string device;
    std::uint32_t cause;
    std::int32_t error;
    const char* advice;
  } rows[] = {
      {"/dev/ttyNoSuchDevice", MEROVANE_CAUSE_NO_DEVICE, ENOENT, "CASSORIND_COM7"},
      {"socket://127.0.0.1:1", MEROVANE_CAUSE_CONNECTION_REFUSED, ECONNREFUSED,
       "takes connections"},
      {longLabel, MEROVANE_CAUSE_HOST_UNKNOWN, 0, "is not known"},
      {"socket://bad", MEROVANE_CAUSE_ADDRESS_MALFORMED, 0, "socket://host:port"},
      {file, MEROVANE_CAUSE_NO_SERIAL_DEVICE, ENOTTY, "no serial device"},
      {folder.Path().string(), MEROVANE_CAUSE_NO_SERIAL_DEVICE, EISDIR, "no serial device"},
      {pipe, MEROVANE_CAUSE_PIPE, 0, "pipe"},
  };
  for (const auto& row : rows) {
    const Merovane_Failure failure = Refused(row.device);
    EXPECT_EQ(failure.cause, row.cause) << row.device;
    EXPECT_EQ(failure.system_error, row.error) << row.device;
    EXPECT_THAT(failure.device, StrEq(row.device));
    EXPECT_THAT(failure.advice, HasSubstr(row.advice));
    EXPECT_THAT(failure.function, StrEq("QV_BeginPhoneTest"));
    EXPECT_EQ(failure.operation, 1u);
    EXPECT_EQ(std::string(failure.system_text).empty(), row.error == 0) << row.device;
  }
}

TEST_F(FailureTest, TellsWhyADeviceThatIsThereDoesNotOpen) {
  SwitchOn(RunningIn(1));
  const std::string device = phone->DevicePath();
  EXPECT_EQ(Refused(device, 123456789).cause, MEROVANE_CAUSE_RATE_REFUSED);

  setenv("CASSORIND_COM8", device.c_str(), 1);
  ASSERT_EQ(QV_BeginPhoneTest_MT(8, 115200), PC_ERR_SUCCESS);
  EXPECT_EQ(Refused(device).cause, MEROVANE_CAUSE_DEVICE_TAKEN);
  ASSERT_EQ(QV_EndPhoneTest(), PC_ERR_SUCCESS);
  unsetenv("CASSORIND_COM8");

  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can take its own rights away";
  ASSERT_EQ(chmod(device.c_str(), 0600), 0);
  ASSERT_EQ(seteuid(65534), 0);
  const Merovane_Failure denied = Refused(device);
  ASSERT_EQ(seteuid(0), 0);
  EXPECT_EQ(denied.cause, MEROVANE_CAUSE_DEVICE_DENIED);
  EXPECT_EQ(denied.system_error, EACCES);
}

TEST_F(FailureTest, TellsOfADeviceThatNeverArrives) {
  Name("/dev/ttyNoSuchDevice");
  ASSERT_EQ(QV_EnterModeProcessEx_MT(kPort, 1, 1, kLimitMs), PC_ERR_ENTER_MODE_FAILED);
  const Merovane_Failure failure = LastFailure(kPort);
  EXPECT_EQ(failure.cause, MEROVANE_CAUSE_NO_DEVICE);
  EXPECT_THAT(failure.advice, ::testing::StartsWith("No device has arrived. Look"));
}

TEST_F(FailureTest, TellsASilentHandsetFromOneThatAnsweredBefore) {
  SwitchOn(RunningIn(1));
  Name(phone->DevicePath());
  Begin();
  phone->SetFault("silent=1");
  const Merovane_Failure silent = Unanswered();
  EXPECT_EQ(silent.cause, MEROVANE_CAUSE_SILENT);
  EXPECT_EQ(silent.bytes_seen, 0u);
  EXPECT_EQ(silent.limit_ms, kLimitMs);
  EXPECT_GE(silent.elapsed_ms, kLimitMs);
  EXPECT_THAT(silent.function, StrEq("QV_ReadFlash_MT"));
  phone->SetFault("none");
  EXPECT_NE(Read(), PC_ERR_NO_ANSWER);
  phone->SetFault("silent=1");
  EXPECT_EQ(Unanswered().cause, MEROVANE_CAUSE_LATE_OR_LOST);
  phone->SetFault("none");
  phone->SetFault("refuse=1");
  EXPECT_EQ(Read(), PC_ERR_REFUSED);
  EXPECT_EQ(LastFailure(kPort).cause, MEROVANE_CAUSE_REFUSED);
}

TEST_F(FailureTest, TellsWhatCameInsteadOfTheAnswer) {
  SwitchOn(RunningIn(1));
  Name(phone->DevicePath());
  Begin();
  phone->SetFault("silent=1");
  const auto during = [&](auto&& say) {
    std::int32_t result = 0;
    std::thread station([&] {
      std::uint8_t data[4] = {};
      std::uint32_t length = 0;
      result = QV_ReadFlash_MT(kPort, 1, data, 4, &length, 1000);
    });
    EXPECT_TRUE(phone->NextFrame(kStorageType, 2).has_value());
    say();
    station.join();
    EXPECT_EQ(result, PC_ERR_NO_ANSWER);
    return LastFailure(kPort);
  };
  const Merovane_Failure noise = during([&] { phone->SendRaw(handset::Bytes(40, 0x55)); });
  EXPECT_EQ(noise.cause, MEROVANE_CAUSE_NOISE);
  EXPECT_EQ(noise.bytes_seen, 40u);
  const Merovane_Failure others = during([&] {
    for (int i = 0; i < 3; ++i) phone->SendFrame(77, 1);
    phone->SendFrame(78, 2);
  });
  EXPECT_EQ(others.cause, MEROVANE_CAUSE_OTHER_FRAMES);
  EXPECT_EQ(others.frames_seen, 4u);
  EXPECT_THAT(others.frames, StrEq("77/1 (3 times), 78/2"));
}

TEST_F(FailureTest, TellsABootingHandsetAndTheOtherByteOrder) {
  SwitchOn({});
  Name(phone->DevicePath());
  Begin();
  const Merovane_Failure booting = [&] {
    std::uint8_t data[4] = {};
    EXPECT_EQ(QV_ReadMode_MT(kPort, data, 4), PC_ERR_NO_ANSWER);
    return LastFailure(kPort);
  }();
  EXPECT_EQ(booting.cause, MEROVANE_CAUSE_BOOTING);
  EXPECT_GT(booting.start_frames_seen, 0u);
  QV_SetProperty(QV_PROPERTY_BIG_ENDIAN, 0, 0);
  EXPECT_EQ(QV_SetPhoneStartModeEx_MT(kPort, 1, 1000), PC_ERR_NO_USEFUL_DATA);
  EXPECT_EQ(LastFailure(kPort).cause, MEROVANE_CAUSE_BYTE_ORDER);
}

TEST_F(FailureTest, TellsOfAnotherProgramOnTheDevice) {
  SwitchOn(RunningIn(1));
  Name(phone->DevicePath());
  ChildProgram other(
      {"/bin/sh", "-c", "exec 3<" + phone->DevicePath() + "; echo open; exec sleep 60"});
  ASSERT_EQ(other.Line(), "open");
  Begin();
  phone->SetFault("silent=1");
  const Merovane_Failure failure = Unanswered();
  EXPECT_EQ(failure.cause, MEROVANE_CAUSE_SHARED_DEVICE);
  EXPECT_THAT(failure.advice, HasSubstr("sleep (process "));
}

TEST_F(FailureTest, TellsOfAnotherStationOnTheSocketAndOfOneThatEnds) {
  SwitchOn(Running(handset::TransportKind::Tcp));
  Name(phone->DevicePath());
  setenv("CASSORIND_COM8", phone->DevicePath().c_str(), 1);
  ASSERT_EQ(QV_BeginPhoneTest_MT(8, 115200), PC_ERR_SUCCESS);
  ASSERT_TRUE(phone->WaitForState([](const HandsetState& state) { return state.stationConnected; },
                                  kPatience));
  Begin();
  EXPECT_EQ(Unanswered().cause, MEROVANE_CAUSE_SILENT_SOCKET);
  ASSERT_EQ(QV_EndPhoneTest(), PC_ERR_SUCCESS);
  unsetenv("CASSORIND_COM8");
  Begin();
  phone->SetFault("disconnect=1");
  EXPECT_EQ(Unanswered().cause, MEROVANE_CAUSE_DEVICE_GONE);
}

TEST_F(FailureTest, KeepsTheLastFailureOfAPortAndOfAThread) {
  Merovane_ForgetFailure(0);
  Merovane_Failure failure{};
  failure.struct_bytes = sizeof failure;
  EXPECT_EQ(Merovane_LastFailure(0, &failure), 0);
  failure.struct_bytes = 8;
  EXPECT_EQ(QV_LedOn(1), PC_ERR_PORT_NOT_OPEN);
  EXPECT_EQ(Merovane_LastFailure(0, &failure), 0) << "a record that is too short";
  EXPECT_EQ(Merovane_LastFailure(0, nullptr), 0);
  EXPECT_EQ(LastFailure(0).cause, MEROVANE_CAUSE_NO_SESSION);
  EXPECT_EQ(QV_LedOn_MT(-3, 1), PC_ERR_INVALID_PARAM);
  EXPECT_EQ(LastFailure(0).cause, MEROVANE_CAUSE_ARGUMENT);
  EXPECT_THAT(LastFailure(0).advice, HasSubstr("`port` below 1"));
  // Another thread has none of this one's.
  std::thread([] {
    Merovane_Failure none{};
    none.struct_bytes = sizeof none;
    EXPECT_EQ(Merovane_LastFailure(0, &none), 0);
  }).join();

  SwitchOn(RunningIn(1));
  Name(phone->DevicePath());
  Begin();
  phone->SetFault("silent=1");
  std::uint8_t data[4] = {};
  std::uint32_t length = 0;
  EXPECT_EQ(QV_ReadFlash(1, data, 4, &length, 20), PC_ERR_NO_ANSWER);
  EXPECT_EQ(LastFailure(kPort).port, kPort) << "that of the default object's port";
  EXPECT_EQ(LastFailure(0).result, PC_ERR_NO_ANSWER);
  Merovane_ForgetFailure(kPort);
  EXPECT_EQ(Merovane_LastFailure(kPort, &failure), 0);
  EXPECT_EQ(LastFailure(0).result, PC_ERR_NO_ANSWER);
}

}  // namespace
}  // namespace merovane::test
