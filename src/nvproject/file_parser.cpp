#include "nvproject/file_parser.h"

#include <algorithm>
#include <utility>

#include "nvproject/module_reader.h"
#include "nvproject/project_text.h"
#include "nvproject/protected_file.h"

namespace merovane::nvproject {
namespace {

constexpr std::string_view kTarget = "TARGET";
constexpr std::string_view kModule = "MODULE";

}  // namespace

CFileParser::CFileParser(OpenText openText)
    : openText_(std::move(openText)), calibration_(items_, areoSpelling_) {}

bool CFileParser::LoadProject(std::string_view path) {
  if (projectStream_ != nullptr || path.empty()) return false;
  project_.target.clear();
  project_.path = path.substr(0, kMaxFilePath);
  auto stream = openText_(project_.path);
  if (stream == nullptr) return false;
  projectStream_ = std::make_unique<KeyReader>(std::move(stream), project_.path, problems_);
  const Reading reading = ReadProject(*projectStream_);
  if (reading == Reading::LeftOpen) return true;
  projectStream_.reset();
  if (reading == Reading::Failed) return false;
  items_.MarkSaved();
  if (modules_.empty()) {
    problems_.push_back({project_.path, 0, "names no module"});
    return false;
  }
  areoSpelling_ = nvproject::HasAreoSpelling(items_);
  calibration_ = CalibrationParameters(items_, areoSpelling_);
  return true;
}

CFileParser::Reading CFileParser::ReadProject(KeyReader& lines) {
  while (lines.Next()) {
    if (lines.HasKey("PROJECT")) lines.TakeWord("PROJECT", kMaxName, project_.name);
    if (lines.HasKey("ALIGNMENT")) lines.TakeNumber("ALIGNMENT", project_.alignment);
    if (lines.HasKey("DESCRIPTION")) lines.TakeWord("DESCRIPTION", kMaxText, project_.description);
    for (const std::string_view key : {kTarget, kModule}) {
      if (!lines.HasKey(key)) continue;
      const Reading reading = TakePath(lines, key);
      if (reading != Reading::Done) return reading;
    }
  }
  return Reading::Done;
}

CFileParser::Reading CFileParser::TakePath(KeyReader& lines, std::string_view key) {
  const auto value = lines.Value(key);
  if (!value) return Reading::Done;
  const std::string_view word = FirstWord(*value);
  const auto path = JoinPath(project_.path, word);
  if (!path) return Reading::LeftOpen;
  if (key == kModule) {
    if (LoadModule(*path)) return Reading::Done;
    lines.Report(lines.LineNumber(), "the module " + *path + " cannot be read");
    return Reading::Failed;
  }
  if (!word.empty()) SetTarget(*path);
  return Reading::Done;
}

bool CFileParser::LoadModule(const std::string& path) {
  ModuleRecord module;
  module.path = path.substr(0, kMaxFilePath);
  auto stream = openText_(module.path);
  if (stream == nullptr) return false;
  KeyReader lines(std::move(stream), module.path, problems_);
  ReadModule(lines, module, items_);
  modules_.push_back(std::move(module));
  return true;
}

bool CFileParser::CreateProject(std::string_view name, std::string_view path,
                                std::string_view target, std::string_view description) {
  if (projectStream_ != nullptr) return false;
  project_.name = name.substr(0, kMaxName);
  project_.path = path.substr(0, kMaxFilePath);
  SetTarget(target);
  project_.description = description.substr(0, kMaxText);
  if (!WriteProtectedFile(project_.path, NewProjectText(project_))) return false;
  items_.MarkSaved();
  return true;
}

bool CFileParser::SaveProject() {
  // A project file that reading has left open is closed now.
  projectStream_.reset();
  if (!WriteProtectedFile(project_.path, ProjectText(project_, modules_))) return false;
  for (std::size_t module = 0; module < modules_.size(); ++module) SaveModule(module);
  items_.MarkSaved();
  return true;
}

bool CFileParser::SaveModule(std::size_t module) {
  if (module >= modules_.size()) return false;
  return WriteProtectedFile(modules_[module].path, ModuleText(modules_[module], items_, module));
}

bool CFileParser::GetItemContent(std::uint32_t /*module*/, std::string_view path,
                                 std::string* content) {
  const std::uint32_t item = items_.Find(path);
  if (item == kNoItem) return false;
  if (content != nullptr) *content = items_[item].content;
  return true;
}

bool CFileParser::SetItemContent(std::uint32_t /*module*/, std::string_view path,
                                 std::string_view content) {
  const std::uint32_t item = items_.Find(path);
  if (item == kNoItem) return false;
  items_.SetContent(item, content);
  return true;
}

void CFileParser::GetItemArray(std::string_view prefix, std::span<std::int16_t> values,
                               IndexNotation first, std::uint32_t /*module*/) {
  ItemArray(std::string(prefix), values.size(), first).Read(items_, values);
}

void CFileParser::SetItemArray(std::string_view prefix, std::span<const std::int16_t> values,
                               IndexNotation first, std::uint32_t /*module*/) {
  ItemArray(std::string(prefix), values.size(), first).Write(items_, values);
}

std::optional<std::uint32_t> CFileParser::ItemOffset(std::string_view path) {
  LayoutItems();
  const std::uint32_t item = items_.FindExact(path);
  if (item == kNoItem) return std::nullopt;
  return items_[item].offset;
}

void CFileParser::ConvertBlock(std::string_view path, std::span<std::uint8_t> data) {
  LayoutItems();
  nvproject::ConvertBlock(items_, path, data);
}

Result CFileParser::GenerateImage(std::span<std::uint8_t, kImageCapacity> buffer,
                                  std::uint32_t& length, const ImageContext& context) {
  LayoutItems();
  if (!image_.Build(items_, context)) return Result::BufferTooSmall;
  std::ranges::copy(image_.Buffer(), buffer.begin());
  length = static_cast<std::uint32_t>(image_.Bytes().size());
  return Result::Success;
}

Result CFileParser::SaveImage(const ImageContext& context, std::string_view dspCodePath) {
  if (project_.target.empty()) {
    ShowFileError("");
    return Result::Success;
  }
  std::unique_ptr<std::istream> dspCode;
  if (!dspCodePath.empty()) {
    dspCode = openText_(std::string(dspCodePath));
    if (dspCode == nullptr) {
      ShowFileError("Can't open DSP Code file, Please check the file is exist!");
      return Result::Success;
    }
  }
  LayoutItems();
  if (!image_.Build(items_, context, dspCode.get())) return Result::BufferTooSmall;
  const std::vector<char> bytes(image_.Bytes().begin(), image_.Bytes().end());
  WriteProtectedFile(project_.target, bytes);
  return Result::Success;
}

}  // namespace merovane::nvproject
