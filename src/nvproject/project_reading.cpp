// Loading a project: the project file and, at each MODULE line, the module file that it names.
#include <array>
#include <memory>
#include <utility>

#include "nvproject/file_parser.h"
#include "nvproject/key_line.h"
#include "nvproject/module_reader.h"
#include "nvproject/project_path.h"

namespace merovane::nvproject {
namespace {

constexpr std::string_view kProject = "PROJECT";
constexpr std::string_view kAlignment = "ALIGNMENT";
constexpr std::string_view kTarget = "TARGET";
constexpr std::string_view kDescription = "DESCRIPTION";
constexpr std::string_view kModule = "MODULE";
constexpr std::array kKeys = {kProject, kAlignment, kTarget, kDescription, kModule};

}  // namespace

bool CFileParser::LoadProject(std::string_view path) {
  if (projectStream_ != nullptr || path.empty()) return false;
  project_.target.clear();
  project_.path = path.substr(0, kMaxFilePath);
  auto stream = openText_(project_.path);
  if (stream == nullptr) return false;
  projectStream_ = std::make_unique<LineReader>(std::move(stream));
  const Reading reading = ReadProject(*projectStream_);
  if (reading == Reading::LeftOpen) return true;
  projectStream_.reset();
  if (reading == Reading::Failed) return false;
  savedRevision_ = items_.ContentRevision();
  if (modules_.empty()) return false;
  areoSpelling_ = nvproject::HasAreoSpelling(items_);
  calibration_ = CalibrationParameters(items_, areoSpelling_);
  return true;
}

CFileParser::Reading CFileParser::ReadProject(LineReader& lines) {
  std::string_view text;
  while (lines.Next(text)) {
    const KeyLine line(text);
    for (const std::string_view key : kKeys) {
      if (!line.HasKey(key)) continue;
      if (const auto value = line.ValueOf(key)) {
        const Reading reading = TakeValue(key, *value);
        if (reading != Reading::Done) return reading;
      }
    }
  }
  return Reading::Done;
}

CFileParser::Reading CFileParser::TakeValue(std::string_view key, std::string_view value) {
  if (key == kProject) TakeWord(value, kMaxName, project_.name);
  if (key == kAlignment) TakeNumber(value, project_.alignment);
  if (key == kDescription) TakeWord(value, kMaxText, project_.description);
  if (key != kTarget && key != kModule) return Reading::Done;

  const std::string_view word = FirstWord(value);
  const auto path = JoinPath(project_.path, word);
  if (!path) return Reading::LeftOpen;
  if (key == kModule) return LoadModule(*path) ? Reading::Done : Reading::Failed;
  if (!word.empty()) project_.target = path->substr(0, kMaxFilePath);
  return Reading::Done;
}

bool CFileParser::LoadModule(const std::string& path) {
  ModuleRecord module;
  module.path = path.substr(0, kMaxFilePath);
  auto stream = openText_(module.path);
  if (stream == nullptr) return false;
  LineReader lines(std::move(stream));
  ModuleReader(lines, items_).Read(module);
  modules_.push_back(std::move(module));
  return true;
}

}  // namespace merovane::nvproject
