// Values by path: one, arrays in both notations, and the checks of every command.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <type_traits>
#include <utility>

#include "nvproject/support.h"

namespace merovane::nvproject::testing {
namespace {

using ::testing::ElementsAre;

std::vector<TestItem> ArrayItems(const std::vector<std::pair<std::string, std::string>>& elements) {
  std::vector<TestItem> items = {{.name = "a", .type = kArray}};
  for (const auto& [index, content] : elements) {
    items.push_back({.name = "a" + index, .type = 2, .parent = 0, .content = content});
  }
  return items;
}

TEST(ItemArrays, ReadInEitherNotationAndRepeatWhatIsMissing) {
  const auto parser = Load({ArrayItems(
      {{"[1]", "0x10"}, {"[0x3]", "-7"}, {"[4]", "0XFFFE"}, {"[0xa]", "12"}, {"[9]", "x"}})});
  std::array<std::int16_t, 12> values;
  for (const auto notation : {IndexNotation::Decimal, IndexNotation::Hexadecimal}) {
    parser->GetItemArray("A", values, notation, 3);
    EXPECT_THAT(values, ElementsAre(0, 16, 16, -7, -2, -2, -2, -2, -2, 0, 12, 12));
  }
}

TEST(ItemArrays, TheNotationDecidesWhereBothAreThere) {
  const auto parser = Load({ArrayItems({{"[0]", "1"}, {"[0x0]", "2"}})});
  std::array<std::int16_t, 1> value;
  parser->GetItemArray("a", value, IndexNotation::Decimal, 0);
  EXPECT_THAT(value, ElementsAre(1));
  parser->SetItemArray("a", value, IndexNotation::Hexadecimal, 0);
  EXPECT_EQ(Content(*parser, "a[0x0]"), "0X1");
  EXPECT_EQ(Content(*parser, "a[0]"), "1");
}

TEST(ItemArrays, WriteHexadecimalAndSkipWhatIsMissing) {
  const std::array<std::int16_t, 6> values = {-2, 255, 7, 0, -32768, 0x1ab};
  const auto parser =
      Load({ArrayItems({{"[0]", ""}, {"[0x1]", ""}, {"[3]", ""}, {"[4]", ""}, {"[5]", ""}})});
  parser->SetItemArray("a", values, IndexNotation::Hexadecimal, 0);
  std::vector<std::string> contents;
  for (std::uint32_t i = 1; i < 6; ++i) contents.push_back(parser->Items()[i].content);
  EXPECT_THAT(contents, ElementsAre("0XFFFE", "0XFF", "0X0", "0X8000", "0X1AB"));
}

TEST(ItemArrays, AWriteThatTakesAnotherElementsPlaceIsSeenByTheNext) {
  // The first element is stored in the second one's place, which is then no longer there.
  std::vector<TestItem> items = ArrayItems({{"[0]", "1"}, {"[1]", "2"}, {"[2]", "3"}});
  items[1].index = 2;
  const auto parser = Load({items});
  const std::array<std::int16_t, 3> values = {16, 17, 18};
  parser->SetItemArray("a", values, IndexNotation::Decimal, 0);
  EXPECT_EQ(Content(*parser, "a[0]"), "1");
  EXPECT_EQ(Content(*parser, "a[1]"), "?");
  EXPECT_EQ(Content(*parser, "a[2]"), "0X12");
  EXPECT_EQ(parser->Items()[2].content, "0X10");
}

TEST(Commands, GetNvValueFillsTheCapacity) {
  const auto parser = Load({{{.name = "a", .content = "0x1234"}}});
  std::string text(300, '#');
  EXPECT_EQ(GetNvValue(parser.get(), 7, "A", text.data(), 4), Result::Success);
  EXPECT_EQ(text.substr(0, 5), "0x12#");
  EXPECT_EQ(GetNvValue(parser.get(), 0, "a", text.data(), 299), Result::Success);
  EXPECT_EQ(text, "0x1234" + std::string(293, '\0') + "#");
  EXPECT_EQ(GetNvValue(parser.get(), 0, "b", text.data(), 9), Result::PathNotFound);
  EXPECT_EQ(SetNvValue(parser.get(), 0, "b", "1"), Result::PathNotFound);
  EXPECT_EQ(SetNvValue(parser.get(), 5, "A", std::string(256, 'y').c_str()), Result::Success);
  EXPECT_EQ(Content(*parser, "a"), std::string(255, 'y'));
}

TEST(Commands, OpenReplacesAndAFailedOpenLeavesNone) {
  const test::TempDirectory directory;
  directory.Write("p", "MODULE = m\n");
  directory.Write("m", "");
  std::unique_ptr<CFileParser> project;
  EXPECT_EQ(OpenPrjFile(project, (directory / "p").string().c_str()), Result::Success);
  const CFileParser* const first = project.get();
  EXPECT_EQ(OpenPrjFile(project, nullptr), Result::InvalidParam);
  EXPECT_EQ(project.get(), first);
  EXPECT_EQ(OpenPrjFile(project, (directory / "q").string().c_str()), Result::OpenNvProjectFailed);
  EXPECT_EQ(project, nullptr);
  EXPECT_EQ(ClosePrjFile(project), Result::Success);
}

// Items of a project's radio parameters, with the value 0x12.
struct RadioItems {
  std::vector<TestItem> items = {{.name = "calibration_param_T", .type = kStruct},
                                 {.name = "rf_param_dsp_use", .type = kStruct, .parent = 0}};

  int Add(const std::string& name, int type, int parent = 1) {
    items.push_back({.name = name, .type = type, .parent = parent, .content = "0x12"});
    return static_cast<int>(items.size()) - 1;
  }
  static std::string Path(const std::string& name) {
    return "calibration_param_T.rf_param_dsp_use." + name;
  }
};

TEST(CalibrationCommands, TellWhichPointsOfARampTableAreMissing) {
  RadioItems radio;
  const int band = radio.Add("rf_dcs_param_dsp_use", kStruct);
  const int stage = radio.Add("stage1", kArray, radio.Add("RF_ramp_table_T", kStruct, band));
  for (const int i : {0, 1, 3, 4, 5}) radio.Add("[" + std::to_string(i) + "]", kShort, stage);
  const auto parser = Load({radio.items});
  std::array<std::uint16_t, 20> points;
  for (std::size_t i = 0; i < 20; ++i) points[i] = static_cast<std::uint16_t>(0x8000 + i);
  EXPECT_EQ(SetNvValue_Multi_Ramp(parser.get(), points.data(), 1, QV_NV_BAND_DCS), Result::Success);
  const std::string path = RadioItems::Path("rf_dcs_param_dsp_use.RF_ramp_table_T.stage1");
  EXPECT_EQ(Content(*parser, path + "[4]"), "0X8004");

  std::vector<std::string> lines;
  const LogLine log = [&](std::string_view line) { lines.emplace_back(line); };
  points.fill(0);
  EXPECT_EQ(GetNvValue_Multi_Ramp(parser.get(), log, points.data(), 1, QV_NV_BAND_DCS),
            Result::Success);
  EXPECT_EQ(points[1], 0x8001);
  EXPECT_EQ(points[2], 0x8001) << "as the one before";
  EXPECT_EQ(points[19], 0x8005);
  ASSERT_EQ(lines.size(), 15U);
  EXPECT_EQ(lines[0], "Get NV Item Value Error! Module = 0, Path = " + path + "[2]");
  EXPECT_EQ(GetNvValue_Multi_Ramp(parser.get(), log, points.data(), 0, QV_NV_BAND_DCS),
            Result::Success);
  EXPECT_EQ(lines.size(), 35U) << "another stage has points of its own";
}

TEST(CalibrationCommands, KeepTdScdmaApartFromTheGsmBands) {
  RadioItems radio;
  const int td = radio.Add("rf_td_param_dsp_use", kStruct);
  radio.Add("[0x5a]", kShort, radio.Add("agc_ctrl_word", kArray, td));
  radio.Add("[79]", kShort, radio.Add("rf_ramppwr_step_factor", kArray, td));
  radio.Add("max_rf_gain_index", kShort, td);
  radio.Add("max_rf_gain_index", kShort, radio.Add("rf_gsm_param_dsp_use", kStruct));
  const auto parser = Load({radio.items});
  const auto content = [&](const std::string& name) {
    return Content(*parser, RadioItems::Path(name));
  };
  std::array<std::uint16_t, 91> words{};
  std::array<std::uint16_t, 80> factors{};
  std::uint16_t gain = 0;
  EXPECT_EQ(GetNvValue_DSP_Use_TD(parser.get(), words.data(), &gain, factors.data()),
            Result::Success);
  EXPECT_EQ(words[90], 0x12);
  EXPECT_EQ(gain, 0x12);
  EXPECT_EQ(factors[79], 0x12);

  words[90] = 0xFFFE;
  factors[79] = 3;
  EXPECT_EQ(SetNvValue_DSP_Use_TD(parser.get(), words.data(), 0x1F, factors.data()),
            Result::Success);
  EXPECT_EQ(content("rf_td_param_dsp_use.agc_ctrl_word[0x5a]"), "0XFFFE");
  EXPECT_EQ(content("rf_td_param_dsp_use.rf_ramppwr_step_factor[79]"), "0X3");
  EXPECT_EQ(content("rf_td_param_dsp_use.max_rf_gain_index"), "0X1f");
  EXPECT_EQ(content("rf_gsm_param_dsp_use.max_rf_gain_index"), "0x12");
  SetNvValue_Agc(parser.get(), words.data(), 0x2A, words.data(), QV_NV_BAND_GSM);
  EXPECT_EQ(content("rf_td_param_dsp_use.max_rf_gain_index"), "0X1f");
}

template <typename T>
T NulledIf(bool nulled, T value) {
  if constexpr (std::is_pointer_v<T>) return nulled ? nullptr : value;
  return value;
}

// A command with good arguments, which a project that holds none of its values does not fail, and
// with each of its pointers null by turns.
template <typename... Parameters, typename... Arguments>
void ExpectChecks(Result (*command)(CFileParser*, Parameters...), Arguments... arguments) {
  const auto project = Load({{{.name = "a"}}});
  const auto call = [&]<std::size_t... At>(CFileParser * parser, std::size_t nulled,
                                           std::index_sequence<At...>) {
    return command(parser, NulledIf(At == nulled, static_cast<Parameters>(arguments))...);
  };
  constexpr auto kAll = std::index_sequence_for<Parameters...>();
  EXPECT_EQ(call(nullptr, sizeof...(Parameters), kAll), Result::NvProjectNotOpen);
  EXPECT_EQ(call(project.get(), sizeof...(Parameters), kAll), Result::Success);
  constexpr bool kPointers[] = {std::is_pointer_v<Parameters>...};
  for (std::size_t at = 0; at < sizeof...(Parameters); ++at) {
    if (!kPointers[at]) continue;
    EXPECT_EQ(call(nullptr, at, kAll), Result::InvalidParam) << at;
    EXPECT_EQ(call(project.get(), at, kAll), Result::InvalidParam) << at;
  }
}

TEST(Commands, CheckArgumentsBeforeTheProject) {
  const LogLine noLog = [](std::string_view) {};
  std::array<std::uint16_t, 100> u16{};
  std::array<std::uint32_t, 2> u32{};
  std::vector<char> bytes(kImageCapacity);
  std::uint16_t* const w = u16.data();
  std::uint32_t* const d = u32.data();
  char* const b = bytes.data();
  ExpectChecks(GetNvValue, 0, "a", b, 1);
  ExpectChecks(SetNvValue, 0, "a", "1");
  ExpectChecks(GenerateNvBianryDataBlockInMemory, ImageContext(), b, d);
  ExpectChecks(GetItemOffsetAndSize, "a", d);
  ExpectChecks(GetNvValue_Agc, w, w, w, 3);
  ExpectChecks(SetNvValue_Agc, w, 1, w, 3);
  ExpectChecks(GetNvValue_Apc, w, w, w, w, w, w, 3);
  ExpectChecks(SetNvValue_Apc, w, 3);
  ExpectChecks(GetNvValue_NvVersion, w);
  ExpectChecks(GetNvValue_NvVersion_TD, w);
  ExpectChecks(GetNvValue_Adc_1, d, d);
  ExpectChecks(SetNvValue_Adc_1, d, d);
  ExpectChecks(GetNvValue_Adc_2, w);
  ExpectChecks(SetNvValue_Adc_2, w);
  ExpectChecks(GetNvValue_Afc_1, w, w);
  ExpectChecks(SetNvValue_Afc_1, 1, 2);
  ExpectChecks(GetNvValue_Afc_2, w, w, w, w, w, w);
  ExpectChecks(SetNvValue_Afc_2, 1, 2, 3, w, w, w);
  ExpectChecks(GetNvValue_DSP_Use_TD, w, w, w);
  ExpectChecks(SetNvValue_DSP_Use_TD, w, 1, w);
  ExpectChecks(GetNvValue_Multi_Ramp, noLog, w, 0, 3);
  ExpectChecks(SetNvValue_Multi_Ramp, w, 0, 3);
  for (const Result result :
       {GetNvValue(nullptr, 0, "a", b, 0), GetNvValue_Agc(nullptr, w, w, w, 4),
        SetNvValue_Agc(nullptr, w, 1, w, 0xFFFFFFFF), GetNvValue_Apc(nullptr, w, w, w, w, w, w, 4),
        SetNvValue_Apc(nullptr, w, 4), GetNvValue_Multi_Ramp(nullptr, noLog, w, 0, 4),
        SetNvValue_Multi_Ramp(nullptr, w, 0, 4)}) {
    EXPECT_EQ(result, Result::InvalidParam);
  }
}

TEST(Commands, ThatCheckTheProjectFirst) {
  const auto project = Load({{{.name = "a"}}});
  std::array<std::uint16_t, 80> words{};
  char byte = 0;
  EXPECT_EQ(ConvertDataByDataType(nullptr, nullptr, &byte, 1), Result::NvProjectNotOpen);
  EXPECT_EQ(ConvertDataByDataType(project.get(), nullptr, &byte, 1), Result::InvalidParam);
  EXPECT_EQ(ConvertDataByDataType(project.get(), "a", nullptr, 1), Result::InvalidParam);
  EXPECT_EQ(ConvertDataByDataType(project.get(), "a", &byte, 0), Result::InvalidParam);
  EXPECT_EQ(ConvertDataByDataType(project.get(), "a", &byte, 0x80000000), Result::InvalidParam);
  EXPECT_EQ(ConvertDataByDataType(project.get(), "a", &byte, 1), Result::Success);
  EXPECT_EQ(GetNvValue_Factor(nullptr, nullptr, 2), Result::NvProjectNotOpen);
  EXPECT_EQ(GetNvValue_Factor(project.get(), nullptr, 2), Result::InvalidParam);
  EXPECT_EQ(GetNvValue_Factor(project.get(), words.data(), 4), Result::Success);
  EXPECT_EQ(SaveToBinaryFile(nullptr, {}), Result::NvProjectNotOpen);
}

}  // namespace
}  // namespace merovane::nvproject::testing
