// What all calibration commands of one exchange have in common: request, answer, log, operation,
// time limit, the link's codes. One export of each kind of calibration item stands for all of it:
// the others differ from it in the numbers of their declaration, which the stations' tests try.
#include <functional>
#include <numeric>

#include "commands/calibration/calibration_fixture.h"
#include "declared/calibration_data.h"
#include "declared/gsm_calibration.h"
#include "declared/multi_chip_calibration.h"
#include "declared/multi_chip_data.h"
#include "declared/td_calibration.h"

namespace merovane::test {
namespace {

constexpr std::uint32_t kOperationBefore = 99;
constexpr std::uint16_t kBand = 3;

struct Row {
  std::vector<std::string> logNames;
  std::uint32_t operation;
  std::uint32_t timeoutMs;  // 0: nothing is awaited
  FrameId id;               // of request and answer
  Payload request;
  Payload answer;
  std::function<Result()> run;
};

// A call that is made later.
#define CALL(...) [&] { return __VA_ARGS__; }

#define INTO(...) [this](auto* into) { return __VA_ARGS__; }

// Of a command that delivers so many elements, and none when it fails.
template <typename T, typename Run>
Row Reading(const char* name, std::uint32_t operation, FrameId id, const Payload& request,
            const Payload& answer, std::size_t count, const char* delivered, Run run) {
  return {{name}, operation, 1000, id, request, answer, [=] {
            GuardedBuffer<T> buffer(32);
            const Result result = run(buffer.Data());
            const std::size_t arrived = Succeeded(result) ? count : 0;
            EXPECT_EQ(buffer.Hex(arrived), arrived > 0 ? delivered : "");
            EXPECT_TRUE(buffer.UntouchedFrom(arrived));
            return result;
          }};
}

constexpr QV_AGC_PARAMETERS kMeasurement{0, {61, 0x1234, 260, 7}, 0};
constexpr const char* kPackedImei = "4A 09 51 24 30 32 57 81";
constexpr const char* kImeiText = "34 39 30 31 35 34 32 30 33 32 33 37 35 31 38 00";

struct CalibrationCommands : CalibrationFixture {
  std::vector<Row> MessageRows();
  std::vector<Row> OtherRows();

  void ForEachRow(const std::function<void(const Row&)>& body) {
    InBothByteOrders([&] {
      for (const auto& rows : {MessageRows(), OtherRows()}) {
        for (const Row& row : rows) {
          SCOPED_TRACE(row.logNames.back());
          phone.calibration = {};
          phone.calibration.currentBand = kBand;
          phone.link.BeginOperation(kOperationBefore);
          body(row);
        }
      }
    });
  }
  Exchange& Expect(const Row& row) {
    return handset.Expect(row.id.type, row.id.subtype, row.request);
  }
};

// Calibration messages and the frames of full power.
std::vector<Row> CalibrationCommands::MessageRows() {
  static constexpr QV_AFC_PARAMETERS kTrim{{1, 2, 3, 4}};
  static constexpr QV_POWER_STEP kStep{0x01020304, 5, 6, 0x0708090A};
  static constexpr QV_TD_TX_SWEEP kSweep{0x01020304, 5, 6, 2, {{0x0708, 9}, {10, 11}, {12, 13}}};
  static constexpr QV_TD_TX_START kStart{0x01020304, 5, 6, 0x0708090A, {11, 12, 13, 14, 0x0F10}};
  static constexpr QV_TD_POWER_SWEEP kPower{0x01020304, 5, 6, 0x0708090A, {11, 12, 13, 0x0F10}};
  static std::array<std::uint16_t, 32> points;
  std::iota(points.begin(), points.end(), std::uint16_t{0x101});

  std::vector<Row> rows;
  const auto message = [&](const char* name, std::uint32_t operation, const Fields& sent,
                           std::function<Result()> run) {
    rows.push_back({{name}, operation, 1000, {10, 0}, sent, {}, std::move(run)});
  };
  message("Active:", 51, Message(0xA101, 16), CALL(Active(phone, 0x100)));
  message("DeActive:", 51, Message(0xA102, 16), CALL(Active(phone, 0)));
  for (const std::uint32_t band : {0U, 1U, 3U, 4U}) {
    message("SetPhoneClassmark:", 52, Message(0xA103, 20).U32(band),
            [this, band] { return SetPhoneClassmark(phone, band); });
  }
  // The first value in third place.
  message("AfcStart:", 53, Words(Message(0xA114, 24), {2, 3, 1, 4}),
          CALL(AfcStart(phone, 1, &kTrim)));
  message("AfcStop:", 53, Message(0xA115, 16), CALL(AfcStart(phone, 0, nullptr)));
  message("AgcStop:", 55, Message(0xA112, 16), CALL(AgcStart(phone, 0, nullptr, nullptr)));
  rows.push_back({{"AfcStopEx:"},
                  54,
                  1000,
                  {10, 1},
                  Message(0xA125, 16),
                  {},
                  CALL(AfcStartEx(phone, 0, nullptr))});
  Fields ramps = Words(Message(0xA118, 88).U32(3), {1});
  for (const std::uint16_t point : points) ramps.U16(point);
  message("RampSetting:", 63, ramps.Zeros(2),
          CALL(RampSetting(phone, 0x10000, points.data(), points.data() + 16, 3)));

  const auto power = [&](unsigned id, unsigned length) {
    return Words(Message(id, length).U32(0x01020304), {5, 6});
  };
  message("PwrStepFactorSet:", 56, power(0xA119, 28).U32(0x0708090A),
          CALL(PwrStepFactorSet(phone, &kStep)));
  // The high half of the amplifier's last field is in the station's order in either case.
  message("PASetting:", 64, power(0xA11A, 28).U16(0x090A).Raw("08 07"),
          CALL(PASetting(phone, &kStep)));
  message("TDTxSweep:", 260, Words(power(0xA12A, 60), {2, 0x0708, 9, 10, 11}).Zeros(26),
          CALL(TDTxSweep(phone, &kSweep)));
  message("TdStartTx:", 222, Words(power(0xA129, 40).U32(0x0708090A), {11, 12, 13, 14, 0x0F10, 0}),
          CALL(TdStartTx(phone, &kStart)));
  message("PwrStepFactorSweepSet_TD:", 171,
          Words(power(0xA128, 36).U32(0x0708090A), {11, 12, 13, 0x0F10}),
          CALL(PwrStepFactorSweepSet_TD(phone, &kPower)));
  message("PwrStepFactorSet_TD:", 173, power(0xA119, 32).U32(0x0708090A).Zeros(4),
          CALL(PwrStepFactorSet_TD(phone, &kStep)));

  const auto sends = [&](const char* name, std::uint32_t operation, std::uint8_t subtype,
                         Result (*command)(Phone&)) {
    rows.push_back(
        {{name}, operation, 0, {17, subtype}, {}, {}, [this, command] { return command(phone); }});
  };
  sends("EnterMaxTxPowerStatus:", 59, 6, EnterMaxTxPowerStatus);
  sends("LeaveMaxTxPowerStatus:", 60, 0, LeaveMaxTxPowerStatus);
  sends("EnterMaxRxPowerStatus:", 61, 5, EnterMaxRxPowerStatus);
  sends("LeaveMaxRxPowerStatus:", 62, 0, LeaveMaxRxPowerStatus);
  return rows;
}

// Calibration data, and the rest.
std::vector<Row> CalibrationCommands::OtherRows() {
  static constexpr QV_POWER_STEP kFactor{QV_BAND_DCS, 15, 0x0BCD, 2};
  static constexpr QV_NON_SIGNAL_COMMAND kNonSignal{
      0xAAAA0102, 0x10005, 0xBBBB0506, {11, 12, 13, 0x1415}};
  static const std::array<std::uint16_t, 20> table{0x0102};
  static std::array<std::uint16_t, 5> temperature{1, 2, 3, 4, 0x7E7D};

  std::vector<Row> rows;
  const auto write = [&](std::vector<std::string> names, std::uint32_t operation,
                         const Fields& sent, std::function<Result()> run,
                         std::uint32_t timeoutMs = 1000) {
    rows.push_back(
        {std::move(names), operation, timeoutMs, {32, 0}, sent, "DE AD", std::move(run)});
  };
  write({"Active_MChip:"}, 69, Header({0, kBand, 27, 0, 2, 1}), CALL(Active_MChip(phone, 0x100)));
  write({"DeActive_MChip:"}, 69, Header({0, kBand, 27, 0, 2, 0}), CALL(Active_MChip(phone, 0)));
  write({"TxOff_MChip", "TxOff:"}, kOperationBefore, TransmitterRequest(kBand, 0),
        CALL(TxOn_MChip(phone, 0, 1, 1)));
  write({"AfcStop_MChip:", "TxOff:"}, 66, TransmitterRequest(kBand, 0),
        CALL(AfcStart_MChip(phone, 0, nullptr)));
  write({"AgcStop_MChip:", "RxOff:"}, 65, ReceiverRequest(kBand, 0, 0x1234, 260),
        CALL(AgcStart_MChip(phone, 0, &kMeasurement, nullptr)));
  // Table 2, level 15; the band is the current one or the record's.
  write({"PwrStepFactorSet_MChip:"}, 70, Header({0, kBand, 21, 47, 2, 0x0BCD}),
        CALL(PwrStepFactorSet_MChip(phone, &kFactor)));
  write({"Set_Flash_8PSK_PWR_FACTOR_MChip:"}, 228, Header({1, 1, 36, 47, 2, 0x0BCD}),
        CALL(Set_Flash_8PSK_PWR_FACTOR_MChip(phone, &kFactor)));
  write({"Set_Ram_8PSK_PWR_FACTOR_MChip:"}, 229, Header({0, 1, 36, 47, 2, 0x0BCD}),
        CALL(Set_Ram_8PSK_PWR_FACTOR_MChip(phone, &kFactor)));
  write({"Set_Flash_8PSK_PWR_TX_GAIN_MChip:"}, 240, Header({1, 1, 37, 47, 2, 0x0BCD}),
        CALL(Set_Flash_8PSK_PWR_TX_GAIN_MChip(phone, &kFactor)));
  write({"Set_Ram_8PSK_PWR_TX_GAIN_MChip:"}, 241, Header({0, 1, 37, 47, 2, 0x0BCD}),
        CALL(Set_Ram_8PSK_PWR_TX_GAIN_MChip(phone, &kFactor)));
  rows.push_back({{"SendNonSignalCmd(ID = 65541):"},
                  259,
                  5000,
                  {32, 0},
                  Header({0, 0, 40, 0, 14, 11, 12, 13, 0x1415, 0x0102, 5, 0x0506}),
                  "00 00 01 02 03 04 05 06",
                  CALL(SendNonSignalCmd(phone, &kNonSignal, nullptr, 5000))});

  write({"WriteData_Flash_ADC:"}, kOperationBefore, Header({1, 0, 1, 200, 4}).U32(0x0A0B0C0D),
        CALL(WriteData_Flash_ADC(phone, 200, 0x0A0B0C0D)));
  write({"SetRampTable_Flash:"}, 142, Header({1, 3, 8, 100, 40, 0x0102}).Zeros(38),
        CALL(SetRampTable_Flash(phone, 3, 5, table.data())));
  // The caller's values stay as they are, whatever the byte order.
  write({"RW_TEMPERATURE_TX_RAMPWR_STEP_FACTOR:"}, kOperationBefore,
        Header({1, 0xFFFF, 57, 0, 10, 1, 2, 3, 4, 0x7E7D}),
        CALL(RW_TEMPERATURE_TX_RAMPWR_STEP_FACTOR(phone, 0, 9, 0xFFFF, temperature.data())));
  write({"WriteData_Flash_SecIMEI:"}, 231, Header({1, 0, 35, 0, 8}).Raw(kPackedImei),
        CALL(WriteData_Flash_SecIMEI(phone, "490154203237518 and more")), 3000);
  write({"SaveToFlash:"}, 169, Header({1, 0, 32, 0, 0}), CALL(SaveToFlash(phone, 20'000)), 20'000);

  rows.push_back(Reading<std::uint32_t>("ReadData_Flash_ADC_Adc1:", 87, {32, 1},
                                        Header({1, 0, 1, 1, 4}),
                                        ReadAnswer().U32(0x01020304).Raw("EE EE"), 1, "04 03 02 01",
                                        INTO(ReadData_Flash_ADC_Adc1(phone, into))));
  rows.push_back(Reading<std::uint16_t>(
      "ReadRampTableConstDown_Ram:", 153, {32, 1}, Header({0, 1, 10, 9, 2}),
      ReadAnswer().U16(0x0708), 1, "08 07", INTO(ReadRampTableConstDown_Ram(phone, 1, 9, into))));
  // What an answer lacks stays as it was.
  rows.push_back(Reading<std::uint16_t>(
      "ReadData_Ram_AGC_RX_compensate_value:", 127, {32, 1}, Header({0, 1, 18, 0, 14}),
      ReadAnswer().U16(1).U16(0x0203), 2, "01 00 03 02",
      INTO(ReadData_Ram_AGC_RX_compensate_value(phone, 1, into, 7))));
  rows.push_back(Reading<std::uint16_t>(
      "RW_RF_EDGE_DELTA_TIMING:", kOperationBefore, {32, 1}, Header({0, 2, 58, 0, 2}),
      ReadAnswer().U16(0x1234), 1, "34 12", INTO(RW_RF_EDGE_DELTA_TIMING(phone, 9, 0, 2, into))));
  rows.push_back(Reading<char>("ReadData_Flash_IMEI:", 75, {32, 1}, Header({1, 0, 30, 0, 8}),
                               ReadAnswer().Raw(kPackedImei), 16, kImeiText,
                               INTO(ReadData_Flash_IMEI(phone, into))));
  const Fields imei = handset.Message().U16(5).Raw(kPackedImei);
  rows.push_back(Reading<std::uint8_t>("ReadIMEI:", 57, {13, 0}, handset.Message().U16(5), imei, 8,
                                       kPackedImei, INTO(ReadIMEI(phone, into))));
  rows.push_back(Reading<char>("ReadIMEI_ASCII:", 58, {13, 0}, handset.Message().U16(5),
                               Fields(imei).Raw("99 99"), 16, kImeiText,
                               INTO(ReadIMEI_ASCII(phone, into))));
  rows.push_back(Reading<std::uint8_t>("ReadMode_TD:", 176, {28, 1}, {}, "01 02 03", 3, "01 02 03",
                                       INTO(ReadMode_TD(phone, into, 4))));
  return rows;
}

TEST_F(CalibrationCommands, AskDeliverAndLog) {
  ForEachRow([&](const Row& row) {
    Exchange& exchange = Expect(row);
    if (row.timeoutMs > 0) {
      exchange.After(row.timeoutMs - 1).Answer(row.id.type, row.id.subtype, row.answer);
    }
    const Result result = row.run();
    EXPECT_EQ(result, Result::Success);
    EXPECT_EQ(OperationOf(result), row.operation);
    ExpectLogged(row.logNames, result);
  });
}

TEST_F(CalibrationCommands, WaitAsLongAsTheirLimitAndTheSettingSay) {
  settings.receiveIncrementMs = 30;
  ForEachRow([&](const Row& row) {
    Expect(row).Silent();
    const bool asks = row.timeoutMs > 0;
    const Result result = asks ? Result::NoAnswer : Result::Success;
    EXPECT_EQ(ElapsedMs([&] { EXPECT_EQ(row.run(), result); }), asks ? row.timeoutMs + 30 : 0);
    ExpectLogged(row.logNames, result);
  });
}

TEST_F(CalibrationCommands, PassTheLinksCodesOn) {
  ForEachRow([&](const Row& row) {
    Expect(row).WriteFails();
    EXPECT_EQ(row.run(), Result::WriteFailed);
    ExpectLogged(row.logNames, Result::WriteFailed);
    if (row.timeoutMs == 0) return;
    Expect(row).Refuse();
    EXPECT_EQ(row.run(), Result::Refused);
    ExpectLogged(row.logNames, Result::Refused);
  });
}

TEST_F(CalibrationCommands, RefuseArgumentsUnderTheirOperation) {
  std::vector<std::uint16_t> data(32758);
  std::uint16_t* const some = data.data();
  std::uint16_t* const null = nullptr;
  QV_AGC_RESULT measured{};
  QV_EXTENDED_AFC run{};
  run.count = 17;
  QV_TD_TX_SWEEP sweep{};
  sweep.count = 9;
  QV_TD_PARAMETERS parameters{};
  const QV_POWER_STEP wrongBand{2, 0, 0, 0};
  const QV_NON_SIGNAL_COMMAND six{0, 6, 0, {}};
  QV_NON_SIGNAL_ANSWER values{};
  std::uint8_t bytes[4];

  const auto refused = [](std::initializer_list<Result> results) {
    EXPECT_THAT(results, ::testing::Each(Result::InvalidParam));
  };
  refused(
      {AfcStart(phone, 1, nullptr), AfcStartEx(phone, 1, nullptr), AfcStartEx(phone, 1, &run),
       AgcStart(phone, 1, nullptr, &measured), AgcStart(phone, 1, &kMeasurement, nullptr),
       RampSetting(phone, 0, some, some, 2), RampSetting(phone, 0, null, some, 3),
       RampSetting(phone, 0, some, null, 3), AgcStart_MChip(phone, 1, nullptr, &measured),
       AgcStart_MChip(phone, 1, &kMeasurement, nullptr), AgcStart_MChip(phone, 0, nullptr, nullptr),
       AfcStart_MChip(phone, 1, nullptr), Set_Flash_8PSK_PWR_FACTOR_MChip(phone, &wrongBand),
       Set_Ram_8PSK_PWR_FACTOR_MChip(phone, &wrongBand),
       Set_Flash_8PSK_PWR_TX_GAIN_MChip(phone, &wrongBand),
       Set_Ram_8PSK_PWR_TX_GAIN_MChip(phone, &wrongBand),
       RampSetting_Ram_MChip(phone, 1, some, null, 0), ReadRamp_Ram_MChip(phone, 1, null, some, 0),
       RampSetting_Flash_MChip(phone, 1, some, some, 2),
       ReadRamp_Flash_MChip(phone, 1, some, some, 2), CalDirectCurr(phone, null, some),
       CalDirectCurr(phone, some, null), SendNonSignalCmd(phone, &six, nullptr, 1),
       SendNonSignalCmd(phone, nullptr, &values, 1), ReadData_Ram_AFC_CDAC(phone, null),
       // It would begin after what the offset word can say.
       ReadRampTable_Ram(phone, 0, 3277, some), TDTxSweep(phone, &sweep), TDTxSweep(phone, nullptr),
       ReadMode_TD(phone, bytes, 0), ReadMode_TD(phone, nullptr, 4), ReadTDCalParam(phone, nullptr),
       WriteTDCalParam(phone, nullptr)});
  for (const std::uint32_t band : {2U, 5U, 0x10000U}) {
    refused({SetPhoneClassmark(phone, band), SetPhoneClassmark_MChip(phone, band),
             ReadData_Ram_AGC_max_rf_gain_index(phone, band, some)});
  }
  for (const std::uint32_t count : {0U, 32759U, 0x8000U, 0x80000001U, UINT32_MAX}) {
    refused({WriteData_Flash_AGC_RX_compensate_value(phone, 0, some, count)});
  }
  for (const char* text : {"", "49015420323751", "49015420323751x", "4901542 3237518",
                           static_cast<const char*>(nullptr)}) {
    refused({WriteData_Flash_IMEI(phone, text)});
  }
  for (const int count : {0, 3074, 65535}) {
    parameters.count = static_cast<std::uint16_t>(count);
    refused({WriteTDCalParam(phone, &parameters)});
  }
  EXPECT_EQ(OperationOf(Result::InvalidParam), 181U);
  EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(CalibrationCommands, TakeCountsAndIndicesThatJustFit) {
  std::vector<std::uint16_t> data(32758, 0x7E);
  handset.ExpectAnyPayload(32, 0).Answer(32, 0);
  EXPECT_EQ(WriteData_Flash_AGC_RX_compensate_value(phone, 0, data.data(), 32758), Result::Success);
  EXPECT_EQ(handset.Heard().back().payload.size(), 10U + 2 * data.size());
  ExpectRead(Header({0, 0, 8, 65520, 40}), ReadAnswer().Zeros(40));
  EXPECT_EQ(ReadRampTable_Ram(phone, 0, 3276, data.data()), Result::Success);

  QV_TD_TX_SWEEP sweep{};
  sweep.count = 8;
  for (auto& point : sweep.points) point[0] = point[1] = 0xFFFF;
  handset.Expect(10, 0, Message(0xA12A, 60).Zeros(8).U16(8).Raw(Bytes(32, 0xFF)).Zeros(2))
      .Answer(10, 0);
  EXPECT_EQ(TDTxSweep(phone, &sweep), Result::Success);
}

}  // namespace
}  // namespace merovane::test
