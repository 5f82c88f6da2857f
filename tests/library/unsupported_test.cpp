// The functions that are there for programs that link against them.
#include "support/station.h"

namespace merovane::test {
namespace {

struct Unsupported : StationTest {
  static void ExpectReported(int32_t result, int32_t code) {
    EXPECT_EQ(result, code);
    EXPECT_EQ(LastReported(), (Reported{0, code}));
  }

  RunningHandset handset{1, kPort};
};

TEST_F(Unsupported, LookForTheirPortAndSendNothing) {
  const auto plain = {QV_CalcApcFactor,     QV_TDStopTx,         QV_AgcStart_TD,
                      QV_ProcessTDApcData,  QV_ProcessTDAGCData, QV_TDSaveToFlash,
                      QV_SendTDNonSignalCmd};
  const auto twins = {QV_CalcApcFactor_MT,     QV_TDStopTx_MT,         QV_AgcStart_TD_MT,
                      QV_ProcessTDApcData_MT,  QV_ProcessTDAGCData_MT, QV_TDSaveToFlash_MT,
                      QV_SendTDNonSignalCmd_MT};
  const auto components = {QV_DownloadDataFromFileToPhone,
                           QV_DownloadDataFromMemoryToPhone,
                           QV_ReadFlashInBoot,
                           QV_WriteFlashInBoot,
                           QV_WriteNvInBoot,
                           QV_UpdateNvItemInBoot,
                           QV_UpdateIMEI_BootMode,
                           QV_UpdateIMEI_BootModeEx,
                           QV_UpdateDoubleIMEI_BootMode,
                           QV_UpdateDoubleIMEI_BootModeEx,
                           QV_Update_IMEI_SN_BootMode,
                           QV_CheckBTAddr_BootMode,
                           QV_UpdateBTAddr_BootMode};
  for (const auto function : plain) ExpectReported(function(), PC_ERR_PORT_NOT_OPEN);
  for (const auto function : components) ExpectReported(function(), PC_ERR_PORT_NOT_OPEN);
  ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), 0);
  for (const auto function : plain) ExpectReported(function(), PC_ERR_NOT_SUPPORTED);
  for (const auto function : components) ExpectReported(function(), PC_ERR_DOWNLOAD_REGISTER);
  for (const auto function : twins) {
    ExpectReported(function(0), PC_ERR_INVALID_PARAM);
    ExpectReported(function(kPort + 1), PC_ERR_PORT_NOT_OPEN);
    ExpectReported(function(kPort), PC_ERR_NOT_SUPPORTED);
  }
  uint8_t mode[4];
  EXPECT_EQ(QV_ReadMode(mode, 4), 0);
  EXPECT_EQ(handset.phone.Received().size(), 1u) << "what asked for the mode";
}

}  // namespace
}  // namespace merovane::test
