// The NV image, as it goes to a caller's memory or to the project's target file.
#include <algorithm>
#include <cstring>
#include <vector>

#include "nvproject/file_parser.h"
#include "nvproject/protected_file.h"

namespace merovane::nvproject {
namespace {

constexpr std::uint16_t kDspCodeId = 4;

void StoreTimeStamp(std::span<std::uint8_t> image, const ImageContext& context) {
  StoreValue(image.first(kImageStart), context.tickCountMs, context.order);
}

// The record of the DSP code, whose 16-bit words are little-endian in its file. A
// shorter file leaves the rest zero.
void StoreDspCode(std::span<std::uint8_t> image, std::istream& code, ByteOrder order) {
  StoreValue(image.subspan(kImageStart, 2), kDspCodeId, order);
  StoreValue(image.subspan(kImageStart + 2, 2), kDspCodeBytes, order);
  std::vector<char> words(kDspCodeBytes);
  code.read(words.data(), static_cast<std::streamsize>(words.size()));
  const std::span<std::uint8_t> place =
      image.subspan(kImageStart + kRecordHeaderBytes, kDspCodeBytes);
  std::ranges::copy(words, place.begin());
  if (order == ByteOrder::Little) return;
  for (std::size_t at = 0; at < place.size(); at += 2) std::swap(place[at], place[at + 1]);
}

}  // namespace

Result CFileParser::GenerateImage(std::span<std::uint8_t, kImageCapacity> buffer,
                                  std::uint32_t& length, const ImageContext& context) {
  LayoutItems();
  if (!image_.Build(items_, kImageStart, context.order)) return Result::BufferTooSmall;
  const std::span<const std::uint8_t> image = image_.Bytes();
  std::memcpy(buffer.data(), image.data(), image.size());
  std::memset(buffer.data() + image.size(), 0, buffer.size() - image.size());
  StoreTimeStamp(buffer, context);
  length = static_cast<std::uint32_t>(image_.Length());
  return Result::Success;
}

Result CFileParser::SaveImage(const ImageContext& context, std::string_view dspCodePath) {
  if (project_.target.empty()) {
    ShowFileError("");
    return Result::Success;
  }
  LayoutItems();
  if (!image_.Build(items_, imageStart_, context.order)) return Result::BufferTooSmall;
  std::vector<std::uint8_t> image(image_.Bytes().begin(), image_.Bytes().end());
  image.resize(image_.Length());
  StoreTimeStamp(image, context);
  if (imageStart_ == kAlternativeImageStart) {
    const auto code = openText_(std::string(dspCodePath));
    if (code == nullptr) {
      ShowFileError("Can't open DSP Code file, Please check the file is exist!");
      return Result::Success;
    }
    StoreDspCode(image, *code, context.order);
  }
  const std::vector<char> bytes(image.begin(), image.end());
  WriteProtectedFile(project_.target, bytes);
  return Result::Success;
}

}  // namespace merovane::nvproject
