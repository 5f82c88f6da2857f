// merovane::Phone as a C++ program uses it, with the library as stations load it.
#include <string>
#include <type_traits>
#include <utility>

#include "merovane/merovane.hpp"
#include "support/station.h"
#include "support/temp_directory.h"

namespace merovane::test {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StrEq;

static_assert(!std::is_copy_constructible_v<Phone> && !std::is_copy_assignable_v<Phone>);
static_assert(std::is_nothrow_move_constructible_v<Phone>);
static_assert(std::is_nothrow_move_assignable_v<Phone> && std::is_nothrow_destructible_v<Phone>);

struct CppPhone : StationTest {
  // A GSM calibration needs a longer wait than the usual one.
  static void SetUpTestSuite() {
    static const TempDirectory folder;
    folder.Write("Merovane.ini", "[Inc Recv Timeout]\nTimeout=200\n");
    ASSERT_EQ(Merovane_SetFolder(folder.Path().string().c_str()), PC_ERR_SUCCESS);
  }
};

template <typename Action>
Error FailureOf(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error;
  }
  ADD_FAILURE() << "nothing was thrown";
  return {PC_ERR_SUCCESS, {}};
}

TEST_F(CppPhone, StartCatchesAHandsetThatBootsRunsOrRunsInAnotherMode) {
  for (const int mode : {0, 1, 4}) {
    SwitchOn(mode == 0 ? HandsetOptions{} : RunningIn(static_cast<std::uint8_t>(mode)));
    const merovane::Phone station(kPort);
    station.Start(1);
    EXPECT_TRUE(WaitUntilRunning(*phone, 1)) << "from mode " << mode;
    EXPECT_EQ(phone->ReceivedCount(12, 1) > 0, mode == 4) << "told to change its mode";
  }
}

TEST_F(CppPhone, StartGivesUpAtItsLimitAndSaysWhatWasSeen) {
  SwitchOn(Running());
  phone->OnFrame(28, 0, handset::Reply::Nothing());
  const merovane::Phone station(kPort);
  const auto begin = std::chrono::steady_clock::now();
  const Error error = FailureOf([&] { station.Start(1, 400ms); });
  EXPECT_LT(std::chrono::steady_clock::now() - begin, 3s);
  EXPECT_EQ(error.Code(), PC_ERR_NO_USEFUL_DATA);
  EXPECT_THAT(error.Advice(), HasSubstr("byte"));
}

TEST_F(CppPhone, ValuesComeBackAsTheyWereGiven) {
  SwitchOn(Running());
  const merovane::Phone station(kPort);
  station.SetImei("490154203237518");
  EXPECT_EQ(station.Imei(), "490154203237518");
  station.SetBluetoothAddress("02B70000AB12");
  EXPECT_EQ(station.BluetoothAddress(), "02B70000AB12");
  EXPECT_EQ(station.Imei(), "490154203237518") << "only what is set is written";
  station.SetSerialNumber("MRV-1");
  EXPECT_EQ(station.SerialNumber(), "MRV-1");

  const merovane::Phone::Bytes data = {1, 0, 0x7e, 0xff};
  station.WriteFlash(200, data);
  EXPECT_EQ(station.ReadFlash(200, 4), data);
  station.WriteNv(300, data);
  EXPECT_EQ(station.ReadNv(300), data);
  station.WriteNv(301, {});
  EXPECT_THAT(station.ReadNv(301), IsEmpty());

  EXPECT_THAT(station.SendAt("AT"), EndsWith("OK\r\n"));
  EXPECT_THAT(station.SoftwareVersion(), HasSubstr("."));
  EXPECT_GT(station.BatteryVoltage(), 0u);
  EXPECT_NE(station.ChipId(), 0u);
  station.BeginCalibration();
  EXPECT_EQ(phone->Status("radio.active"), "yes");
  station.EndCalibration();
  std::uint32_t type = 0;
  station.Call(QV_GetChipType_MT, &type);
  EXPECT_NE(type, 0u);
}

TEST_F(CppPhone, AFailureSaysWhichCallAndWhatToCheck) {
  SwitchOn(Running());
  const merovane::Phone station(kPort);
  phone->OnFrame(13, 2, handset::Reply::Nothing());
  const Error error = FailureOf([&] { station.ReadFlash(3, 4, 100ms); });
  EXPECT_EQ(error.Code(), PC_ERR_NO_ANSWER);
  EXPECT_THAT(error.Function(), StrEq("QV_ReadFlash_MT"));
  EXPECT_EQ(error.Operation(), 23u);
  EXPECT_EQ(error.Failure().device, phone->DevicePath());
  EXPECT_THAT(error.what(), HasSubstr("QV_ReadFlash_MT: PC_ERR_"));
  EXPECT_THAT(error.what(), EndsWith(error.Advice()));

  // A result that is no failure of this thread's last call has its own words.
  EXPECT_THAT(FailureOf([] { Check(PC_ERR_CHECKSUM_MISMATCH); }).Function(), StrEq(""));
  EXPECT_THROW(station.SetImei("4901542032375180"), std::invalid_argument);
}

TEST_F(CppPhone, OneObjectEndsTheSessionOnce) {
  SwitchOn(Running());
  {
    merovane::Phone first(kPort);
    EXPECT_EQ(FailureOf([] { merovane::Phone{kPort}; }).Code(), PC_ERR_PORT_ALREADY_OPENED);
    merovane::Phone second(std::move(first));
    EXPECT_EQ(second.Port(), kPort);
    EXPECT_NO_THROW(second.ChipId());
  }
  merovane::Phone again(kPort);
  again.Close();
  again.Close();
  EXPECT_EQ(again.Port(), 0);
  EXPECT_EQ(FailureOf([] { merovane::Phone{-1}; }).Code(), PC_ERR_INVALID_PARAM);
}

}  // namespace
}  // namespace merovane::test
