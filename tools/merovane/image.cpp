#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "merovane/open_project.h"
#include "merovane/project_tool.h"
#include "platform/files.h"

namespace merovane::tool {
namespace {

using nvproject::Item;

void Dump(std::span<const std::uint8_t> image, std::ostream& out) {
  constexpr std::size_t kBytesPerLine = 16;
  std::array<char, 32> text;
  for (std::size_t at = 0; at < image.size(); at += kBytesPerLine) {
    std::snprintf(text.data(), text.size(), "%08zx: ", at);
    out << text.data();
    for (const std::uint8_t byte : image.subspan(at, std::min(kBytesPerLine, image.size() - at))) {
      std::snprintf(text.data(), text.size(), "%02x ", byte);
      out << text.data();
    }
    out << '\n';
  }
}

// Offsets of top-level items' data are in the image; those of the others follow from them.
void Map(const nvproject::ItemStore& items, std::ostream& out) {
  nvproject::RecordPlaces places(nvproject::kImageStart);
  std::array<char, 64> text;
  out << "  offset  length     id  path\n";
  std::uint64_t base = nvproject::kImageStart + nvproject::kRecordHeaderBytes;
  std::uint32_t id = 0;
  for (const auto& module : items.Modules()) {
    for (std::uint32_t position = 0; position < module.count; ++position) {
      const Item& item = items[module.first + position];
      std::uint64_t offset = base + item.offset;
      if (item.IsTopLevel()) {
        offset = base = places.Next(item.length) + nvproject::kRecordHeaderBytes;
        id = item.id;
      }
      const std::uint32_t width = nvproject::ScalarWidth(item.type);
      // A nested structure's own length counts from its top-level item's start.
      const bool hasPlace = item.IsTopLevel() || width > 0;
      if (!hasPlace) continue;
      std::snprintf(text.data(), text.size(), "%8llu%8u%7u  ",
                    static_cast<unsigned long long>(offset), width > 0 ? width : item.length, id);
      out << text.data() << item.fullPath << '\n';
    }
  }
}

// To the file that the options name, or else to the project's own.
void WriteFile(nvproject::CFileParser& parser, const ImageOptions& options,
               const nvproject::ImageContext& context, std::ostream& out) {
  if (options.output) parser.SetTarget(*options.output);
  const std::string target = parser.Project().target;
  if (target.empty()) throw Trouble(parser.Project().path + ": has no TARGET; give an --output");
  if (options.dspCode && !nvproject::OpenRegularFile(*options.dspCode)) {
    throw Trouble(*options.dspCode + ": cannot be read");
  }
  if (!Succeeded(parser.SaveImage(context, options.dspCode.value_or("")))) {
    throw Trouble(target + ": its image would be larger than 65536 bytes");
  }
  std::error_code error;
  out << target << ": " << std::filesystem::file_size(platform::PathFromText(target), error)
      << " bytes\n";
}

}  // namespace

int Image(const std::string& project, const ImageOptions& options, std::ostream& out) {
  const auto parser = OpenProject(project);
  const nvproject::ImageContext context{
      options.littleEndian ? ByteOrder::Little() : ByteOrder::Big(), options.timeStamp};
  std::vector<std::uint8_t> image(nvproject::kImageCapacity);
  std::uint32_t length = 0;
  if (!Succeeded(parser->GenerateImage(std::span<std::uint8_t, nvproject::kImageCapacity>(image),
                                       length, context))) {
    throw Trouble(project + ": its image would be larger than 65536 bytes");
  }
  image.resize(length);
  const bool toFile = options.output || options.dspCode;
  if (options.map) {
    Map(parser->Items(), out);
  } else if (!toFile) {
    Dump(image, out);
  }
  if (toFile) WriteFile(*parser, options, context, out);
  return kOk;
}

}  // namespace merovane::tool
