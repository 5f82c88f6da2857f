#include <optional>
#include <tuple>

#include "support/station.h"
#include "support/temp_directory.h"

// Calls QV_<name> or QV_<name>_MT, as the test's parameter says.
#define QV(name, ...) \
  (mt ? QV_##name##_MT(kPort __VA_OPT__(, ) __VA_ARGS__) : QV_##name(__VA_ARGS__))

namespace merovane::test {
namespace {

// Form, transport, byte order of the handset, receive mode.
using Parameters = std::tuple<bool, handset::TransportKind, handset::ByteOrder, uint32_t>;

class Battery : public StationTest, public ::testing::WithParamInterface<Parameters> {
 protected:
  void SetUp() override {
    const auto [form, transport, order, receiveMode] = GetParam();
    mt = form;
    HandsetOptions options;
    options.transport = transport;
    options.byteOrder = order;
    options.startFrameInterval = 20ms;
    SwitchOn(options);
    QV_SetProperty(4, 0, order == handset::ByteOrder::Big);
    QV_SetProperty(3, 0, receiveMode);
  }
  void Begin() {
    ASSERT_EQ(mt ? QV_BeginPhoneTest_MT(kPort, 115200) : QV_BeginPhoneTest(kPort, 115200), 0);
  }
  void BeginRunning() {
    Begin();
    ASSERT_EQ(QV(SetPhoneStartModeEx, 1, 20000), 0);
  }
  uint8_t Mode() {
    uint8_t data[4] = {};
    EXPECT_EQ(QV(ReadMode, data, 4), 0);
    return data[3];
  }

  bool mt = false;
};

TEST_P(Battery, ABootingHandsetIsCaughtAndDriven) {
  Begin();
  EXPECT_EQ(LastReported(), (Reported{1, 0}));
  ASSERT_EQ(QV(SetPhoneStartModeEx, 1, 20000), 0);
  EXPECT_EQ(LastReported(), (Reported{6, 0}));
  EXPECT_EQ(Mode(), 0x81);
  EXPECT_EQ(LastReported(), (Reported{12, 0}));
  EXPECT_EQ(QV(SetModeAndCampParam, 2, 0x1F, 0x5A3), 0);
  EXPECT_EQ(phone->Status("session.camp_word"), std::to_string(0xA3AF));
  EXPECT_EQ(QV(ChangePhoneMode, 4), 0);
  EXPECT_EQ(Mode(), 0x84);
  uint32_t answered = 9;
  EXPECT_EQ(QV(UsbChangePhoneMode, 5, &answered), 0);
  EXPECT_EQ(answered, 1u);
  EXPECT_EQ(QV(UsbChangeModeAndSetCampParam, 6, 1, 2, &answered), 0);
  EXPECT_EQ(phone->Status("session.camp_word"), std::to_string(0x0201));

  EXPECT_EQ(QV(RestartPhone, 5000), 0);
  uint8_t header[8] = {};
  uint32_t length = 0;
  ASSERT_EQ(QV(RecvPhoneStartData, header, 8, &length, 20000), 0);
  EXPECT_EQ(length, 8u);
  EXPECT_EQ(header[6], 0xFE);
  EXPECT_EQ(QV(SetPhoneStartMode, 1), 0);
  EXPECT_EQ(Mode(), 0x81);
  EXPECT_TRUE(phone->Rejected().empty()) << phone->Rejected().front();
}

TEST_P(Battery, AtCommandsAreCarried) {
  BeginRunning();
  char answer[256] = {};
  uint32_t length = 0;
  EXPECT_EQ(QV(SendAtCommand, "AT+CSQ", 6, 1, answer, 256, &length, 10000), 0);
  EXPECT_EQ(std::string(answer, length), "\r\n+CSQ: 23,0\r\n\r\nOK\r\n");
  EXPECT_EQ(QV(SendAT, "AT+CGMM\r", 8, answer, 256, &length, 10000), 0);
  EXPECT_EQ(std::string(answer, length), "Handset");
  QV_CELL_INFO cell = {};
  EXPECT_EQ(QV(GetCurrCellInfo, &cell), 0);
  EXPECT_THAT(cell.values, ::testing::ElementsAre(460, 0, 6334, 1021, 62, 48, -71, 2));
}

TEST_P(Battery, RawBytesGoBothWaysAndAreRecorded) {
  const TempDirectory directory;
  QV_SaveRecvData(1, (directory / "recorded").c_str());
  BeginRunning();
  phone->OnFrame(99, 1, Reply::Answer(99, 1, {0x7E, 0x7D, 0x01}).InPieces(1));
  const auto order = std::get<handset::ByteOrder>(GetParam());
  const handset::Bytes bytes = handset::EncodeFrame({99, 1, {}, 0}, order);
  EXPECT_EQ(QV(Write, bytes.data(), static_cast<int32_t>(bytes.size())), 0);
  uint8_t frame[64];
  uint32_t length = 0;
  do {  // start frames may still be on their way
    length = sizeof frame;
    ASSERT_EQ(QV(Read, frame, &length, 10000), 0);
  } while (frame[6] != 99);
  EXPECT_EQ(length, 11u);
  EXPECT_EQ(frame[8], 0x7E);
  // In thread mode the record may lag behind the commands until the session's end.
  EXPECT_EQ(QV_EndPhoneTest(), 0);
  const handset::Bytes wire = handset::EncodeFrame({99, 1, {0x7E, 0x7D, 0x01}, 0}, order);
  EXPECT_TRUE(FileText(directory / "recorded").ends_with(std::string(wire.begin(), wire.end())));
}

std::string NameOf(const ::testing::TestParamInfo<Parameters>& each) {
  const auto [form, transport, order, receiveMode] = each.param;
  return std::string(form ? "MT" : "Plain") +
         (transport == handset::TransportKind::Pty ? "Pty" : "Tcp") +
         (order == handset::ByteOrder::Big ? "Big" : "Little") + (receiveMode == 0 ? "" : "Thread");
}

using handset::ByteOrder;
using handset::TransportKind;
INSTANTIATE_TEST_SUITE_P(
    Each, Battery,
    ::testing::Values(Parameters(false, TransportKind::Pty, ByteOrder::Big, 0),
                      Parameters(false, TransportKind::Tcp, ByteOrder::Little, 1),
                      Parameters(true, TransportKind::Pty, ByteOrder::Little, 1),
                      Parameters(true, TransportKind::Tcp, ByteOrder::Big, 0)),
    NameOf);

}  // namespace
}  // namespace merovane::test
