// The functions of NV projects as stations call them.
#include <array>

#include "support/log_reader.h"
#include "support/station.h"
#include "support/temp_directory.h"

namespace merovane::test {
namespace {

struct NvProjects : StationTest {
  RunningHandset handset{1, 7};
};

TEST_F(NvProjects, AreReportedUnderTheirOperations) {
  ASSERT_EQ(QV_BeginPhoneTest(7, 115200), 0);
  std::array<uint16_t, 91> w{};
  std::array<uint32_t, 2> d{};
  std::array<char, 8> text{};
  static std::array<uint8_t, 65536> image;
  uint16_t* const u = w.data();
  const auto expect = [](uint32_t operation, int32_t result) {
    EXPECT_EQ(LastReported(), (Reported{operation, 17})) << operation << " gave " << result;
  };
  expect(194, QV_SaveToBinaryFile());
  expect(195, QV_GenerateNvBianryDataBlockInMemory(image.data(), d.data()));
  expect(196, QV_GetNvValue_Agc(u, u, u, 0));
  expect(197, QV_SetNvValue_Agc(u, 1, u, 0));
  expect(198, QV_GetNvValue_Apc(u, u, u, u, u, u, 0));
  expect(199, QV_SetNvValue_Apc(u, 0));
  expect(198, QV_GetNvValue_Factor(u, 0));
  expect(200, QV_GetNvValue_NvVersion(u));
  expect(201, QV_GetNvValue_Adc_1(d.data(), d.data()));
  expect(202, QV_SetNvValue_Adc_1(d.data(), d.data()));
  expect(203, QV_GetNvValue_Adc_2(u));
  expect(204, QV_SetNvValue_Adc_2(u));
  expect(205, QV_GetNvValue_Afc_1(u, u));
  expect(206, QV_SetNvValue_Afc_1(1, 2));
  expect(207, QV_GetNvValue_Afc_2(u, u, u, u, u, u));
  expect(208, QV_SetNvValue_Afc_2(1, 2, 3, u, u, u));
  expect(209, QV_GetNvValue_NvVersion_TD(u));
  expect(210, QV_GetNvValue_DSP_Use_TD(u, u, u));
  expect(211, QV_SetNvValue_DSP_Use_TD(u, 1, u));
  expect(212, QV_GetNvValue_Multi_Ramp(u, 0, 0));
  expect(213, QV_SetNvValue_Multi_Ramp(u, 0, 0));
  expect(214, QV_GetNvValue(0, "a", text.data(), 8));
  expect(215, QV_SetNvValue(0, "a", "1"));
  expect(216, QV_GetItemOffsetAndSize("a", d.data()));
  expect(217, QV_ConvertDataByDataType("a", image.data(), 8));
}

TEST_F(NvProjects, WriteToTheUsefulLogOfTheirPort) {
  const TempDirectory directory;
  directory.Write("p", "MODULE = m\n");
  directory.Write("m", "");
  QV_SetProperty(QV_PROPERTY_USEFUL_LOG, 0, 1);
  ASSERT_EQ(QV_BeginPhoneTest(7, 115200), 0);
  ASSERT_EQ(QV_OpenPrjFile((directory / "p").string().c_str()), 0);
  LogReader log(7, "UsefulLog");
  log.TakeText();
  std::array<uint16_t, 20> points;
  EXPECT_EQ(QV_GetNvValue_Multi_Ramp_MT(7, points.data(), 0, 0), 0);
  const auto lines = log.TakeText();
  ASSERT_EQ(lines.size(), 20u);
  EXPECT_EQ(lines.back(),
            "Get NV Item Value Error! Module = 0, Path = calibration_param_T.rf_param_dsp_use."
            "rf_gsm_param_dsp_use.RF_ramp_table_T.stage0[19]");
}

}  // namespace
}  // namespace merovane::test
