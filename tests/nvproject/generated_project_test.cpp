// A realistic project on disk: its paths, and the typed commands against its contents.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include "nvproject/commands.h"
#include "nvproject/support.h"
#include "project-generator/project_generator.h"

namespace merovane::nvproject::testing {
namespace {

using ::testing::ElementsAreArray;

using Words = std::vector<std::uint16_t>;

struct Variant {
  bool areoSpelling;
  bool decimalAgcWords;
};

const std::array<std::string, 4> kBandNames = {"gsm", "gsm850", "dcs", "pcs"};

class GeneratedProject : public ::testing::TestWithParam<Variant> {
 protected:
  void SetUp() override {
    generated = projectgen::Generate({.items = 3000,
                                      .seed = 3,
                                      .areoSpelling = GetParam().areoSpelling,
                                      .decimalAgcWords = GetParam().decimalAgcWords});
    ASSERT_TRUE(parser.LoadProject(projectgen::Write(generated, directory.Path("x")).string()));
    common = "calibration_param_T.rf_param_dsp_use.rf_common_param_dsp_use.";
    afc = common + (GetParam().areoSpelling ? "areo2" : "aero2") + "_RF_AFC_STRUCT.";
  }

  static std::string BandPath(std::uint32_t band) {
    return "calibration_param_T.rf_param_dsp_use.rf_" + kBandNames[band] + "_param_dsp_use.";
  }
  // What a content of the project means, read with the C library.
  std::uint32_t Value(const std::string& path, int base = 0) {
    const std::string content = Content(parser, path);
    if (base == 0) base = content.find_first_of("xX") == std::string::npos ? 10 : 16;
    return static_cast<std::uint32_t>(std::strtoll(content.c_str(), nullptr, base));
  }
  Words Table(const std::string& path, std::uint32_t count) {
    Words values;
    for (std::uint32_t i = 0; i < count; ++i) {
      const bool decimal = Content(parser, path + projectgen::DecimalIndex(i)) != "?";
      values.push_back(static_cast<std::uint16_t>(
          Value(path + (decimal ? projectgen::DecimalIndex(i) : projectgen::HexadecimalIndex(i)))));
    }
    return values;
  }
  Words Ramp(std::uint32_t band, const std::string& name) {
    return Table(BandPath(band) + "rf_" + name + ".rf_" + name, 16);
  }
  static Words Counted(std::uint32_t count, std::uint16_t first) {
    Words values(count);
    for (auto& value : values) value = first = static_cast<std::uint16_t>(first + 257);
    return values;
  }

  TemporaryDirectory directory;
  projectgen::Project generated;
  CFileParser parser;
  std::string common;
  std::string afc;
};

INSTANTIATE_TEST_SUITE_P(Variants, GeneratedProject,
                         ::testing::Values(Variant{true, false}, Variant{false, true}));

TEST_P(GeneratedProject, HasEveryItemUnderItsPath) {
  ASSERT_EQ(parser.Items().Items().Size(), 3000U);
  for (const auto& item : generated.items) {
    std::string content;
    ASSERT_TRUE(parser.GetItemContent(0, item.path, &content)) << item.path;
    ASSERT_EQ(content, item.content) << item.path;
  }
  EXPECT_EQ(parser.HasAreoSpelling(), GetParam().areoSpelling);
  std::vector<std::uint8_t> image(kImageCapacity);
  std::uint32_t length = 0;
  EXPECT_EQ(GenerateNvBinaryDataBlockInMemory(&parser, image.data(), &length, {}), Result::Success);
}

TEST_P(GeneratedProject, AgcOfEveryBand) {
  for (std::uint32_t band = 0; band < 4; ++band) {
    Words words(91), boundary(4);
    std::uint16_t gain = 0;
    ASSERT_EQ(GetNvValueAgc(&parser, words.data(), &gain, boundary.data(), band), Result::Success);
    EXPECT_THAT(words, ElementsAreArray(Table(BandPath(band) + "agc_ctrl_word", 91)));
    EXPECT_EQ(gain, Value(BandPath(band) + "max_rf_gain_index", 16));
    EXPECT_THAT(boundary,
                ElementsAreArray(Table(BandPath(band) + "RX_compensate_boundary_arfcn_index", 4)));
  }
}

TEST_P(GeneratedProject, SetAgcWritesTheGainIndicesOfOtherBandsFromTheCache) {
  const auto gain = [&](std::uint32_t band) {
    return Content(parser, BandPath(band) + "max_rf_gain_index");
  };
  const Words words = Counted(91, 0x8000), compensation = Counted(5, 0);
  const std::string pcs = gain(3);
  // Nothing was read yet: the others become 0, PCS is left alone.
  ASSERT_EQ(SetNvValueAgc(&parser, words.data(), 0x1F, compensation.data(), 1), Result::Success);
  EXPECT_EQ(gain(0), "0X0");
  EXPECT_EQ(gain(1), "0X1f");
  EXPECT_EQ(gain(2), "0X0");
  EXPECT_EQ(gain(3), pcs);
  EXPECT_THAT(Table(BandPath(1) + "agc_ctrl_word", 91), ElementsAreArray(words));
  EXPECT_THAT(Table(BandPath(1) + "RX_compensate_value", 5), ElementsAreArray(compensation));

  // A read fills all four.
  ASSERT_TRUE(parser.SetItemContent(0, BandPath(2) + "max_rf_gain_index", "22"));
  Words read(91), boundary(4);
  std::uint16_t index = 0;
  ASSERT_EQ(GetNvValueAgc(&parser, read.data(), &index, boundary.data(), 0), Result::Success);
  ASSERT_EQ(SetNvValueAgc(&parser, words.data(), 0xFFFE, compensation.data(), 3), Result::Success);
  EXPECT_EQ(gain(0), "0X0");
  EXPECT_EQ(gain(1), "0X1f");
  EXPECT_EQ(gain(2), "0X22");
  EXPECT_EQ(gain(3), "0Xfffe");
}

TEST_P(GeneratedProject, ApcOfEveryBandAndTheCrossingOfGsm) {
  for (std::uint32_t band = 0; band < 4; ++band) {
    SCOPED_TRACE(kBandNames[band]);
    const Words factors = Counted(80, static_cast<std::uint16_t>(band));
    ASSERT_EQ(SetNvValueApc(&parser, factors.data(), band), Result::Success);
    Words up0(16), up1(16), down0(16), down1(16), boundary(4), factor(80);
    ASSERT_EQ(GetNvValueApc(&parser, up0.data(), up1.data(), down0.data(), down1.data(),
                            boundary.data(), factor.data(), band),
              Result::Success);
    EXPECT_THAT(up0, ElementsAreArray(Ramp(band, "ramp_up_table_stage0")));
    EXPECT_THAT(up1, ElementsAreArray(Ramp(band, "ramp_up_table_stage1")));
    const bool gsm = band == 0;
    EXPECT_THAT(gsm ? down1 : down0, ElementsAreArray(Ramp(band, "ramp_down_table_stage0")));
    EXPECT_THAT(gsm ? down0 : down1, ElementsAreArray(Ramp(band, "ramp_down_table_stage1")));
    EXPECT_THAT(boundary,
                ElementsAreArray(Table(BandPath(band) + "TX_compensate_boundary_arfcn_index", 4)));
    EXPECT_THAT(factor, ElementsAreArray(factors));
  }
}

TEST_P(GeneratedProject, FactorHasBandNumbersOfItsOwn) {
  const std::array<std::uint32_t, 5> apcBand = {0, 2, 99, 3, 1};
  for (std::uint32_t band = 0; band < 6; ++band) {
    Words factor(80, 0xEEEE);
    EXPECT_EQ(GetNvValueFactor(&parser, factor.data(), band), Result::Success);
    const bool read = band != 2 && band != 5;
    EXPECT_THAT(factor, ElementsAreArray(
                            read ? Table(BandPath(apcBand[band]) + "rf_ramppwr_step_factor", 80)
                                 : Words(80, 0xEEEE)));
  }
}

TEST_P(GeneratedProject, AdcChargingAndVersion) {
  std::array<std::uint32_t, 2> adc{}, battery{};
  const std::string points = "calibration_param_T.adc.";
  ASSERT_EQ(GetNvValueAdc1(&parser, adc.data(), battery.data()), Result::Success);
  EXPECT_EQ(adc[0], Value(points + "adc[0]"));
  EXPECT_EQ(adc[1], Value(points + "adc[1]"));
  EXPECT_EQ(battery[1], Value(points + "battery[1]"));
  adc = {0xFFFFFFFF, 0xabc};
  ASSERT_EQ(SetNvValueAdc1(&parser, adc.data(), battery.data()), Result::Success);
  EXPECT_EQ(Content(parser, points + "adc[0]"), "0XFFFFFFFF");
  EXPECT_EQ(Content(parser, points + "adc[1]"), "0XABC");
  std::array<std::uint32_t, 2> again{};
  ASSERT_EQ(GetNvValueAdc1(&parser, again.data(), battery.data()), Result::Success);
  EXPECT_EQ(again, adc);

  const std::string charging = "production_param_T.CHR_PARAM_T.";
  Words table(16);
  ASSERT_EQ(GetNvValueAdc2(&parser, table.data()), Result::Success);
  EXPECT_THAT(table, ElementsAreArray(Table(charging + "adc_voltage_table", 16)));
  EXPECT_EQ(parser.Calibration().Cached(CommonValue::SwitchVoltage),
            Value(charging + "switch_voltage"));
  table = Counted(16, 9);
  ASSERT_EQ(SetNvValueAdc2(&parser, table.data()), Result::Success);
  EXPECT_THAT(Table(charging + "adc_voltage_table", 16), ElementsAreArray(table));

  std::uint16_t version = 0;
  ASSERT_TRUE(parser.SetItemContent(0, "calibration_param_T.cal_param_version", "123"));
  ASSERT_EQ(GetNvValueNvVersion(&parser, &version), Result::Success);
  EXPECT_EQ(version, 0x123);
  version = 0;
  ASSERT_EQ(GetNvValueNvVersionTd(&parser, &version), Result::Success);
  EXPECT_EQ(version, 0x123);
}

TEST_P(GeneratedProject, AfcUnderTheProjectsSpelling) {
  std::uint16_t center = 0, slope = 0, length = 0, cdac = 0, cafc = 0;
  ASSERT_EQ(GetNvValueAfc1(&parser, &center, &slope), Result::Success);
  EXPECT_EQ(center, static_cast<std::uint16_t>(Value(common + "afc_center")));
  EXPECT_EQ(slope, static_cast<std::uint16_t>(Value(common + "afc_slope_hz_per_6bits")));
  ASSERT_EQ(SetNvValueAfc1(&parser, 0xABC, 0xFFFF), Result::Success);
  EXPECT_EQ(Content(parser, common + "afc_center"), "0xabc");
  EXPECT_EQ(Content(parser, common + "afc_slope_hz_per_6bits"), "0xffff");

  Words range(16), value(16), reciprocal(16);
  ASSERT_EQ(
      GetNvValueAfc2(&parser, &length, &cdac, &cafc, range.data(), value.data(), reciprocal.data()),
      Result::Success);
  EXPECT_EQ(length, static_cast<std::uint16_t>(Value(afc + "slope_length")));
  EXPECT_EQ(cdac, static_cast<std::uint16_t>(Value(afc + "CDAC")));
  EXPECT_EQ(cafc, static_cast<std::uint16_t>(Value(afc + "CAFC")));
  EXPECT_THAT(range, ElementsAreArray(Table(afc + "slope_struct.afc_range_arr", 16)));
  EXPECT_THAT(value, ElementsAreArray(Table(afc + "slope_struct.slope_value_arr", 16)));
  EXPECT_THAT(reciprocal,
              ElementsAreArray(Table(afc + "slope_struct.slope_value_reciprocal_arr", 16)));

  range = Counted(16, 1), value = Counted(16, 2), reciprocal = Counted(16, 3);
  ASSERT_EQ(
      SetNvValueAfc2(&parser, 0x1A, 0x2B, 0x3C, range.data(), value.data(), reciprocal.data()),
      Result::Success);
  EXPECT_EQ(Content(parser, afc + "slope_length"), "0X1A");
  EXPECT_EQ(Content(parser, afc + "CDAC"), "0X2B");
  EXPECT_EQ(Content(parser, afc + "CAFC"), "0X3C");
  EXPECT_THAT(Table(afc + "slope_struct.afc_range_arr", 16), ElementsAreArray(range));
  EXPECT_THAT(Table(afc + "slope_struct.slope_value_arr", 16), ElementsAreArray(value));
  EXPECT_THAT(Table(afc + "slope_struct.slope_value_reciprocal_arr", 16),
              ElementsAreArray(reciprocal));
}

TEST(MissingParameters, ReadAsZeroAndASecondPointAsTheFirst) {
  const auto parser = Load({{{.name = "calibration_param_T", .type = 7},
                             {.name = "adc", .type = 7, .parent = 0},
                             {.name = "adc[0]", .type = 4, .parent = 1, .content = "0x7"}}});
  std::array<std::uint32_t, 2> adc = {1, 1}, battery = {1, 1};
  ASSERT_EQ(GetNvValueAdc1(parser.get(), adc.data(), battery.data()), Result::Success);
  EXPECT_THAT(adc, ::testing::ElementsAre(7, 7));
  EXPECT_THAT(battery, ::testing::ElementsAre(0, 0));
}

}  // namespace
}  // namespace merovane::nvproject::testing
