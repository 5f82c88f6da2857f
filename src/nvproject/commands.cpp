#include "nvproject/commands.h"

#include <cstring>
#include <string>

namespace merovane::nvproject {

Result OpenPrjFile(std::unique_ptr<CFileParser>& project, const char* path) {
  if (path == nullptr) return Result::InvalidParam;
  project.reset();
  auto opened = std::make_unique<CFileParser>();
  if (!opened->LoadProject(path)) return Result::OpenNvProjectFailed;
  project = std::move(opened);
  return Result::Success;
}

Result ClosePrjFile(std::unique_ptr<CFileParser>& project) {
  project.reset();
  return Result::Success;
}

Result GetNvValue(CFileParser* project, std::uint32_t module, const char* path, char* text,
                  std::uint32_t capacity) {
  if (path == nullptr || text == nullptr || !IsCapacity(capacity)) return Result::InvalidParam;
  if (project == nullptr) return Result::NvProjectNotOpen;
  std::string content;
  if (!project->GetItemContent(module, path, &content)) return Result::PathNotFound;
  const std::size_t count = content.copy(text, capacity);
  std::memset(text + count, 0, capacity - count);
  return Result::Success;
}

Result SetNvValue(CFileParser* project, std::uint32_t module, const char* path, const char* text) {
  if (path == nullptr || text == nullptr) return Result::InvalidParam;
  if (project == nullptr) return Result::NvProjectNotOpen;
  const void* const end = std::memchr(text, 0, kMaxText);
  const std::size_t length =
      end == nullptr ? kMaxText : static_cast<std::size_t>(static_cast<const char*>(end) - text);
  return project->SetItemContent(module, path, {text, length}) ? Result::Success
                                                               : Result::PathNotFound;
}

Result GenerateNvBinaryDataBlockInMemory(CFileParser* project, void* buffer, std::uint32_t* length,
                                         const ImageContext& context) {
  if (buffer == nullptr || length == nullptr) return Result::InvalidParam;
  if (project == nullptr) return Result::NvProjectNotOpen;
  const std::span<std::uint8_t, kImageCapacity> image(static_cast<std::uint8_t*>(buffer),
                                                      kImageCapacity);
  return project->GenerateImage(image, *length, context);
}

Result SaveToBinaryFile(CFileParser* project, const ImageContext& context) {
  if (project == nullptr) return Result::NvProjectNotOpen;
  return project->SaveImage(context);
}

Result GetItemOffsetAndSize(CFileParser* project, const char* path, std::uint32_t* offset) {
  if (path == nullptr || offset == nullptr) return Result::InvalidParam;
  if (project == nullptr) return Result::NvProjectNotOpen;
  const auto found = project->ItemOffset(path);
  if (!found) return Result::PathNotFound;
  *offset = *found;
  return Result::Success;
}

Result ConvertDataByDataType(CFileParser* project, const char* path, void* data,
                             std::uint32_t length) {
  if (project == nullptr) return Result::NvProjectNotOpen;
  if (path == nullptr || data == nullptr || length == 0) return Result::InvalidParam;
  project->ConvertBlock(path, {static_cast<std::uint8_t*>(data), length});
  return Result::Success;
}

}  // namespace merovane::nvproject
