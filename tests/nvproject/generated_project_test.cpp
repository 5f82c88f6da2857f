// A realistic project on disk: its paths, and the typed commands against its contents.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include "nvproject/support.h"
#include "project-generator/project_generator.h"

namespace merovane::nvproject::testing {
namespace {

using ::testing::ElementsAre;

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
    ASSERT_TRUE(parser.LoadProject(projectgen::Write(generated, directory / "x").string()));
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

  test::TempDirectory directory;
  projectgen::Project generated;
  CFileParser parser;
  std::string common;
  std::string afc;
};

INSTANTIATE_TEST_SUITE_P(Variants, GeneratedProject,
                         ::testing::Values(Variant{true, false}, Variant{false, true}));

TEST_P(GeneratedProject, HasEveryItemUnderItsPath) {
  ASSERT_EQ(parser.Items().Size(), 3000U);
  for (const auto& item : generated.items) {
    ASSERT_EQ(Content(parser, item.path), item.content) << item.path;
  }
  EXPECT_EQ(parser.HasAreoSpelling(), GetParam().areoSpelling);
  std::vector<std::uint8_t> image;
  EXPECT_EQ(Generate(parser, image), Result::Success);
}

TEST_P(GeneratedProject, AgcOfEveryBand) {
  for (std::uint32_t band = 0; band < 4; ++band) {
    Words words(91), boundary(4);
    std::uint16_t gain = 0;
    ASSERT_EQ(GetNvValue_Agc(&parser, words.data(), &gain, boundary.data(), band), Result::Success);
    EXPECT_EQ(words, Table(BandPath(band) + "agc_ctrl_word", 91));
    EXPECT_EQ(gain, Value(BandPath(band) + "max_rf_gain_index", 16));
    EXPECT_EQ(boundary, Table(BandPath(band) + "RX_compensate_boundary_arfcn_index", 4));
  }
}

TEST_P(GeneratedProject, SetAgcWritesTheGainIndicesOfOtherBandsFromTheCache) {
  const auto gains = [&] {
    std::vector<std::string> contents;
    for (std::uint32_t band = 0; band < 4; ++band) {
      contents.push_back(Content(parser, BandPath(band) + "max_rf_gain_index"));
    }
    return contents;
  };
  const Words words = Counted(91, 0x8000), compensation = Counted(5, 0);
  const std::string pcs = gains()[3];
  // Nothing was read yet: the others become 0, PCS is left alone.
  ASSERT_EQ(SetNvValue_Agc(&parser, words.data(), 0x1F, compensation.data(), 1), Result::Success);
  EXPECT_THAT(gains(), ElementsAre("0X0", "0X1f", "0X0", pcs));
  EXPECT_EQ(Table(BandPath(1) + "agc_ctrl_word", 91), words);
  EXPECT_EQ(Table(BandPath(1) + "RX_compensate_value", 5), compensation);

  // A read fills all four.
  ASSERT_TRUE(parser.SetItemContent(0, BandPath(2) + "max_rf_gain_index", "22"));
  Words read(91), boundary(4);
  std::uint16_t index = 0;
  ASSERT_EQ(GetNvValue_Agc(&parser, read.data(), &index, boundary.data(), 0), Result::Success);
  ASSERT_EQ(SetNvValue_Agc(&parser, words.data(), 0xFFFE, compensation.data(), 3), Result::Success);
  EXPECT_THAT(gains(), ElementsAre("0X0", "0X1f", "0X22", "0Xfffe"));
}

TEST_P(GeneratedProject, ApcOfEveryBandAndTheCrossingOfGsm) {
  for (std::uint32_t band = 0; band < 4; ++band) {
    SCOPED_TRACE(kBandNames[band]);
    const Words factors = Counted(80, static_cast<std::uint16_t>(band));
    ASSERT_EQ(SetNvValue_Apc(&parser, factors.data(), band), Result::Success);
    Words up0(16), up1(16), down0(16), down1(16), boundary(4), factor(80);
    ASSERT_EQ(GetNvValue_Apc(&parser, up0.data(), up1.data(), down0.data(), down1.data(),
                             boundary.data(), factor.data(), band),
              Result::Success);
    if (band == 0) std::swap(down0, down1);
    EXPECT_EQ(up0, Ramp(band, "ramp_up_table_stage0"));
    EXPECT_EQ(up1, Ramp(band, "ramp_up_table_stage1"));
    EXPECT_EQ(down0, Ramp(band, "ramp_down_table_stage0"));
    EXPECT_EQ(down1, Ramp(band, "ramp_down_table_stage1"));
    EXPECT_EQ(boundary, Table(BandPath(band) + "TX_compensate_boundary_arfcn_index", 4));
    EXPECT_EQ(factor, factors);
  }
}

TEST_P(GeneratedProject, FactorHasBandNumbersOfItsOwn) {
  const std::array<std::uint32_t, 5> apcBand = {0, 2, 99, 3, 1};
  for (std::uint32_t band = 0; band < 6; ++band) {
    Words factor(80, 0xEEEE);
    EXPECT_EQ(GetNvValue_Factor(&parser, factor.data(), band), Result::Success);
    const bool read = band != 2 && band != 5;
    EXPECT_EQ(factor, read ? Table(BandPath(apcBand[band]) + "rf_ramppwr_step_factor", 80)
                           : Words(80, 0xEEEE));
  }
}

TEST_P(GeneratedProject, AdcChargingAndVersion) {
  std::array<std::uint32_t, 2> adc{}, battery{};
  const std::string points = "calibration_param_T.adc.";
  ASSERT_EQ(GetNvValue_Adc_1(&parser, adc.data(), battery.data()), Result::Success);
  EXPECT_THAT(adc, ElementsAre(Value(points + "adc[0]"), Value(points + "adc[1]")));
  EXPECT_THAT(battery, ElementsAre(Value(points + "battery[0]"), Value(points + "battery[1]")));
  std::swap(battery[0], battery[1]);
  const std::array<std::uint32_t, 2> written = {0xFFFFFFFF, 0xabc};
  ASSERT_EQ(SetNvValue_Adc_1(&parser, written.data(), battery.data()), Result::Success);
  EXPECT_EQ(Content(parser, points + "adc[0]"), "0XFFFFFFFF");
  EXPECT_EQ(Content(parser, points + "adc[1]"), "0XABC");
  EXPECT_EQ(Value(points + "battery[0]"), battery[0]);
  EXPECT_EQ(Value(points + "battery[1]"), battery[1]);
  ASSERT_EQ(GetNvValue_Adc_1(&parser, adc.data(), battery.data()), Result::Success);
  EXPECT_EQ(adc, written);

  const std::string charging = "production_param_T.CHR_PARAM_T.";
  Words table(16);
  ASSERT_EQ(GetNvValue_Adc_2(&parser, table.data()), Result::Success);
  EXPECT_EQ(table, Table(charging + "adc_voltage_table", 16));
  EXPECT_EQ(parser.Calibration().Cached(CommonValue::SwitchVoltage),
            Value(charging + "switch_voltage"));
  table = Counted(16, 9);
  ASSERT_EQ(SetNvValue_Adc_2(&parser, table.data()), Result::Success);
  EXPECT_EQ(Table(charging + "adc_voltage_table", 16), table);

  ASSERT_TRUE(parser.SetItemContent(0, "calibration_param_T.cal_param_version", "123"));
  for (const auto read : {GetNvValue_NvVersion, GetNvValue_NvVersion_TD}) {
    std::uint16_t version = 0;
    ASSERT_EQ(read(&parser, &version), Result::Success);
    EXPECT_EQ(version, 0x123);
  }
}

TEST_P(GeneratedProject, AfcUnderTheProjectsSpelling) {
  const std::array<std::string, 2> one = {common + "afc_center", common + "afc_slope_hz_per_6bits"};
  std::uint16_t center = 0, slope = 0;
  ASSERT_EQ(GetNvValue_Afc_1(&parser, &center, &slope), Result::Success);
  EXPECT_EQ(center, static_cast<std::uint16_t>(Value(one[0])));
  EXPECT_EQ(slope, static_cast<std::uint16_t>(Value(one[1])));
  ASSERT_EQ(SetNvValue_Afc_1(&parser, 0xABC, 0xFFFF), Result::Success);
  EXPECT_EQ(Content(parser, one[0]), "0xabc");
  EXPECT_EQ(Content(parser, one[1]), "0xffff");

  const std::array<std::string, 3> values = {afc + "slope_length", afc + "CDAC", afc + "CAFC"};
  const std::array<std::string, 3> tables = {afc + "slope_struct.afc_range_arr",
                                             afc + "slope_struct.slope_value_arr",
                                             afc + "slope_struct.slope_value_reciprocal_arr"};
  std::array<std::uint16_t, 3> value{};
  std::array<Words, 3> table = {Words(16), Words(16), Words(16)};
  ASSERT_EQ(GetNvValue_Afc_2(&parser, &value[0], &value[1], &value[2], table[0].data(),
                             table[1].data(), table[2].data()),
            Result::Success);
  for (std::size_t at = 0; at < 3; ++at) {
    EXPECT_EQ(value[at], static_cast<std::uint16_t>(Value(values[at])));
    EXPECT_EQ(table[at], Table(tables[at], 16));
    table[at] = Counted(16, static_cast<std::uint16_t>(at));
  }
  ASSERT_EQ(SetNvValue_Afc_2(&parser, 0x1A, 0x2B, 0x3C, table[0].data(), table[1].data(),
                             table[2].data()),
            Result::Success);
  const std::array<std::string, 3> contents = {"0X1A", "0X2B", "0X3C"};
  for (std::size_t at = 0; at < 3; ++at) {
    EXPECT_EQ(Content(parser, values[at]), contents[at]);
    EXPECT_EQ(Table(tables[at], 16), table[at]);
  }
}

TEST(MissingParameters, ReadAsZeroAndASecondPointAsTheFirst) {
  const auto parser = Load({{{.name = "calibration_param_T", .type = kStruct},
                             {.name = "adc", .type = kStruct, .parent = 0},
                             {.name = "adc[0]", .type = kLong, .parent = 1, .content = "0x7"}}});
  std::array<std::uint32_t, 2> adc = {1, 1}, battery = {1, 1};
  ASSERT_EQ(GetNvValue_Adc_1(parser.get(), adc.data(), battery.data()), Result::Success);
  EXPECT_THAT(adc, ElementsAre(7, 7));
  EXPECT_THAT(battery, ElementsAre(0, 0));
}

}  // namespace
}  // namespace merovane::nvproject::testing
