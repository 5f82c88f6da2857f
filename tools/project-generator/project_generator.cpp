#include "project-generator/project_generator.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace merovane::projectgen {
namespace {

// Modules beyond the first two have about this many items.
constexpr std::size_t kModuleItems = 600;

class Generator {
 public:
  explicit Generator(const Options& options) : options_(options), random_(options.seed) {}

  Project Run() {
    AddCalibration();
    AddProduction();
    while (project_.items.size() < options_.items) AddFurtherModule();
    project_.files.insert(project_.files.begin(), {"handset.prj", ProjectText()});
    return std::move(project_);
  }

 private:
  // Not std::uniform_int_distribution: what that gives differs between libraries.
  std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_()) % limit; }

  // Values are spelled in every way that projects spell them.
  std::string Value(std::uint32_t limit) {
    const std::uint32_t value = Below(limit);
    const std::uint32_t spelling = Below(8);
    if (spelling == 0) return std::to_string(value);
    if (spelling == 1) return "-" + std::to_string(value / 2);
    char text[16];
    std::snprintf(text, sizeof(text), spelling % 2 == 0 ? "0X%X" : "0x%x", value);
    return text;
  }
  std::string Value(Type type) {
    if (type == Type::Char) return Value(0x80);
    return Value(type == Type::Short ? 0x8000 : 0x7FFFFFFF);
  }

  void AddTable(ModuleBuilder& module, std::string_view name, std::uint32_t count) {
    module.AddArray(name, Type::Short, count, [&](std::uint32_t) { return Value(0x1000); });
  }

  void AddCalibration();
  void AddRamp(ModuleBuilder& module, const std::string& table, bool inStructure);
  void AddBand(ModuleBuilder& module, std::string_view name, bool rampsInStructures);
  void AddCommonRadio(ModuleBuilder& module);
  void AddProduction();
  void AddFurtherModule();
  void AddStructure(ModuleBuilder& module, const std::string& name, std::size_t room, int depth);
  void Finish(const std::string& name, const ModuleBuilder& module);
  std::string ProjectText() const;

  Options options_;
  std::mt19937 random_;
  std::uint32_t nextId_ = 1;
  Project project_;
};

void Generator::AddCalibration() {
  ModuleBuilder module("calibration", nextId_);
  module.OpenStruct("calibration_param_T");
  module.AddScalar("cal_param_version", Type::Short, "0x0123");
  module.OpenStruct("adc");
  for (const std::string_view name : {"adc[0]", "adc[1]", "battery[0]", "battery[1]"}) {
    module.AddScalar(name, Type::Long, Value(0x100000));
  }
  module.CloseStruct();
  module.OpenStruct("rf_param_dsp_use");
  AddBand(module, "rf_gsm_param_dsp_use", false);
  AddBand(module, "rf_dcs_param_dsp_use", true);
  AddBand(module, "rf_pcs_param_dsp_use", false);
  AddBand(module, "rf_gsm850_param_dsp_use", true);
  AddCommonRadio(module);
  module.CloseStruct();
  module.CloseStruct();
  Finish("calibration_param.nvm", module);
}

// A ramp table is either a structure with an array of the same name, or an array whose elements
// keep their whole name as a member does.
void Generator::AddRamp(ModuleBuilder& module, const std::string& table, bool inStructure) {
  if (inStructure) {
    module.OpenStruct("rf_" + table);
    AddTable(module, "rf_" + table, 16);
    module.CloseStruct();
    return;
  }
  const std::string name = "RF_" + table;
  const auto elementName = [&](std::uint32_t i) { return name + DecimalIndex(i); };
  const auto elementPath = [&](std::uint32_t i) { return "." + elementName(i); };
  module.AddArray(name, Type::Short, 16, elementName, elementPath,
                  [&](std::uint32_t) { return Value(0x400); });
}

void Generator::AddBand(ModuleBuilder& module, std::string_view name, bool rampsInStructures) {
  module.OpenStruct(name);
  for (const char* const table : {"ramp_up_table_stage0", "ramp_up_table_stage1",
                                  "ramp_down_table_stage0", "ramp_down_table_stage1"}) {
    AddRamp(module, table, rampsInStructures);
  }
  AddTable(module, "TX_compensate_boundary_arfcn_index", 4);
  AddTable(module, "rf_ramppwr_step_factor", 80);
  AddTable(module, "RX_compensate_boundary_arfcn_index", 4);
  AddTable(module, "RX_compensate_value", 5);
  const ModuleBuilder::ElementText index =
      options_.decimalAgcWords ? DecimalIndex : HexadecimalIndex;
  module.AddArray(
      "agc_ctrl_word", Type::Short, 91, [&](std::uint32_t i) { return "agc_ctrl_word" + index(i); },
      index, [&](std::uint32_t) { return Value(0x8000); });
  module.AddScalar("max_rf_gain_index", Type::Short, "0x" + std::to_string(Below(90)));
  module.CloseStruct();
}

void Generator::AddCommonRadio(ModuleBuilder& module) {
  module.OpenStruct("rf_common_param_dsp_use");
  module.AddScalar("afc_center", Type::Short, Value(0x2000));
  module.AddScalar("afc_slope_hz_per_6bits", Type::Short, Value(0x2000));
  module.OpenStruct(options_.areoSpelling ? "areo2_RF_AFC_STRUCT" : "aero2_RF_AFC_STRUCT");
  for (const std::string_view name : {"slope_length", "CDAC", "CAFC"}) {
    module.AddScalar(name, Type::Short, Value(0x4000));
  }
  module.OpenStruct("slope_struct");
  AddTable(module, "afc_range_arr", 16);
  AddTable(module, "slope_value_arr", 16);
  AddTable(module, "slope_value_reciprocal_arr", 16);
  module.CloseStruct();
  module.CloseStruct();
  module.CloseStruct();
}

void Generator::AddProduction() {
  ModuleBuilder module("production", nextId_);
  module.OpenStruct("production_param_T");
  module.AddString("serial_number", 24, "SN" + std::to_string(100000 + Below(900000)));
  module.OpenStruct("CHR_PARAM_T");
  for (const std::string_view name :
       {"charge_end_voltage", "pulse_charge_voltage", "recharge_voltage", "switch_voltage",
        "voltage_shutdown", "voltage_warning"}) {
    module.AddScalar(name, Type::Short, std::to_string(3000 + Below(1300)));
  }
  AddTable(module, "adc_voltage_table", 16);
  module.CloseStruct();
  module.CloseStruct();
  Finish("production_param.nvm", module);
}

constexpr std::array<std::string_view, 8> kSubjects = {"audio",   "cell",  "display", "timer",
                                                       "network", "power", "camera",  "sensor"};
constexpr std::array<std::string_view, 8> kProperties = {"gain",   "threshold", "period", "mode",
                                                         "offset", "level",     "count",  "mask"};

void Generator::AddFurtherModule() {
  const std::size_t number = project_.files.size();
  const std::string name =
      std::string(kSubjects[number % kSubjects.size()]) + "_param_" + std::to_string(number);
  const std::size_t target = std::min(kModuleItems, options_.items - project_.items.size());
  ModuleBuilder module(name, nextId_);
  for (std::uint32_t i = 0; module.Count() < target; ++i) {
    const std::size_t room = target - module.Count();
    const std::string item = name + "_" + std::to_string(i);
    if (i % 4 == 0 || room < 12) {
      module.AddScalar(item, i % 8 == 0 ? Type::Long : Type::Char,
                       Value(i % 8 == 0 ? Type::Long : Type::Char));
    } else if (i % 16 == 1) {
      module.AddString(item, 16, "text" + std::to_string(Below(1000)));
    } else {
      AddStructure(module, item + "_T", std::min<std::size_t>(room, 120), 0);
    }
  }
  Finish(name + ".nvm", module);
}

// Fills a structure with at most `room` items, itself included.
void Generator::AddStructure(ModuleBuilder& module, const std::string& name, std::size_t room,
                             int depth) {
  constexpr std::array kTypes = {Type::Char, Type::Short, Type::Long, Type::Short};
  const std::size_t end = module.Count() + room;
  module.OpenStruct(name);
  for (std::uint32_t i = 0; module.Count() < end; ++i) {
    const std::size_t left = end - module.Count();
    const std::string member = std::string(kProperties[Below(8)]) + "_" + std::to_string(i);
    const std::uint32_t kind = Below(8);
    const Type type = kTypes[Below(4)];
    if (kind == 0 && depth < 4 && left > 8) {
      AddStructure(module, member + "_T", left / 2, depth + 1);
    } else if (kind < 3 && left > 9) {
      module.AddArray(member, type, 8 * (1 + Below(static_cast<std::uint32_t>(left - 1) / 8)),
                      [&](std::uint32_t) { return Value(type); });
    } else {
      module.AddScalar(member, type, Value(type));
    }
  }
  module.CloseStruct();
}

void Generator::Finish(const std::string& name, const ModuleBuilder& module) {
  // Ids are handed out by module, with room for later items.
  nextId_ += 1000;
  project_.files.push_back({name, module.Text()});
  project_.items.insert(project_.items.end(), module.Items().begin(), module.Items().end());
}

std::string Generator::ProjectText() const {
  const std::string rule(80, '#');
  std::string text =
      "# Quorvantel Kestrane Project File, Format Version 1.0\r\n"
      "# WARNING: DO NOT EDIT OR DELETE THIS PROJECT FILE!\r\n\r\n" +
      rule +
      "\r\n  PROJECT     =  handset\r\n  ALIGNMENT   =  4\r\n  TARGET      =  nvitem.bin\r\n"
      "  DESCRIPTION =  generated\r\n\r\n" +
      rule + "\r\n\r\n# Begin Project Module\r\n\r\n";
  for (const File& file : project_.files) text += "  MODULE     =  " + file.name + "\r\n";
  return text + "\r\n# End Project Module\r\n\r\n" + rule + "\r\n";
}

}  // namespace

Project Generate(const Options& options) { return Generator(options).Run(); }

std::filesystem::path Write(const Project& project, const std::filesystem::path& directory) {
  std::filesystem::create_directories(directory);
  for (const File& file : project.files) {
    std::ofstream stream(directory / file.name, std::ios::binary);
    stream << file.text;
    if (!stream.flush())
      throw std::runtime_error("cannot write " + (directory / file.name).string());
  }
  return directory / project.files.front().name;
}

}  // namespace merovane::projectgen
