// Loading a project: the project file and, at each MODULE line, the module file that it names.
#include <memory>
#include <utility>

#include "nvproject/file_parser.h"
#include "nvproject/key_line.h"
#include "nvproject/module_reader.h"
#include "nvproject/project_path.h"

namespace merovane::nvproject {

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
  areoSpelling_ = items_.Find(kAreoProbe) != kNoItem;
  calibration_ = CalibrationParameters(items_, areoSpelling_);
  return true;
}

CFileParser::Reading CFileParser::ReadProject(LineReader& lines) {
  std::string_view text;
  while (lines.Next(text)) {
    const KeyLine line = SplitLine(text);
    if (!line.value) continue;
    if (line.key == "PROJECT") {
      TakeWord(*line.value, kMaxName, project_.name);
    } else if (line.key == "ALIGNMENT") {
      TakeNumber(*line.value, project_.alignment);
    } else if (line.key == "DESCRIPTION") {
      TakeWord(*line.value, kMaxText, project_.description);
    } else if (line.key == "TARGET" || line.key == "MODULE") {
      const std::string_view word = FirstWord(*line.value);
      const auto path = JoinPath(project_.path, word);
      if (!path) return Reading::LeftOpen;
      if (line.key == "MODULE") {
        if (!LoadModule(*path)) return Reading::Failed;
      } else if (!word.empty()) {
        project_.target = path->substr(0, kMaxFilePath);
      }
    }
  }
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
