// What callers can ask of a phone object's NV project as a whole, and of its items by path.
#include <algorithm>
#include <cstring>
#include <string>

#include "declared/nv_project.h"

namespace merovane::nvproject::body {

Result OpenPrjFile(std::unique_ptr<CFileParser>& holder, const char* path) {
  holder.reset();
  auto opened = std::make_unique<CFileParser>();
  if (!opened->LoadProject(path)) return Result::OpenNvProjectFailed;
  holder = std::move(opened);
  return Result::Success;
}

Result ClosePrjFile(std::unique_ptr<CFileParser>& holder) {
  holder.reset();
  return Result::Success;
}

Result GetNvValue(CFileParser& project, std::uint32_t module, const char* path,
                  std::span<char> text) {
  std::string content;
  if (!project.GetItemContent(module, path, &content)) return Result::PathNotFound;
  const std::size_t count = content.copy(text.data(), text.size());
  std::ranges::fill(text.subspan(count), '\0');
  return Result::Success;
}

Result SetNvValue(CFileParser& project, std::uint32_t module, const char* path, const char* text) {
  const void* const end = std::memchr(text, 0, kMaxText);
  const std::size_t length =
      end == nullptr ? kMaxText : static_cast<std::size_t>(static_cast<const char*>(end) - text);
  return project.SetItemContent(module, path, {text, length}) ? Result::Success
                                                              : Result::PathNotFound;
}

Result GenerateNvBianryDataBlockInMemory(CFileParser& project, const ImageContext& context,
                                         std::span<std::uint8_t, 65536> buffer,
                                         std::uint32_t& length) {
  return project.GenerateImage(buffer, length, context);
}

Result SaveToBinaryFile(CFileParser& project, const ImageContext& context) {
  return project.SaveImage(context);
}

Result GetItemOffsetAndSize(CFileParser& project, const char* path, std::uint32_t& offset) {
  const auto found = project.ItemOffset(path);
  if (!found) return Result::PathNotFound;
  offset = *found;
  return Result::Success;
}

Result ConvertDataByDataType(CFileParser& project, const char* path, std::span<std::uint8_t> data) {
  project.ConvertBlock(path, data);
  return Result::Success;
}

}  // namespace merovane::nvproject::body
