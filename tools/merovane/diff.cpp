#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <vector>

#include "merovane/open_project.h"
#include "merovane/project_tool.h"
#include "nvproject/text_rules.h"
#include "platform/files.h"

namespace merovane::tool {
namespace {

using Entries = std::map<std::string, std::string>;

std::vector<std::uint8_t> ReadFile(const std::string& path) {
  std::ifstream file(platform::PathFromText(path), std::ios::binary);
  std::vector<std::uint8_t> bytes((std::istreambuf_iterator<char>(file)),
                                  std::istreambuf_iterator<char>());
  if (!file.is_open() || file.bad()) throw Trouble(path + ": cannot be read");
  return bytes;
}

// A project is text from its first line on; an image begins with a time stamp and an item's header.
bool IsProject(const std::vector<std::uint8_t>& bytes) {
  return std::ranges::find(bytes, std::uint8_t{0}) == bytes.end();
}

std::string Hex(std::span<const std::uint8_t> data) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : data) {
    text += kDigits[byte >> 4];
    text += kDigits[byte & 0xF];
  }
  return text;
}

// The first item of a path answers for it, and so it is compared.
Entries ProjectEntries(const std::string& path) {
  const auto parser = OpenProject(path);
  Entries entries;
  const auto& items = parser->Items();
  for (std::uint32_t position = 0; position < items.Size(); ++position) {
    const auto& item = items[position];
    entries.emplace(item.fullPath,
                    std::string(nvproject::TypeName(item.type)) + " " + item.content);
  }
  return entries;
}

// By item id; the time stamp does not count. Room without a header is that of texts.
Entries ImageEntries(const std::string& path, const std::vector<std::uint8_t>& image,
                     bool littleEndian) {
  const auto u16 = [&](std::size_t at) {
    return littleEndian ? image[at] | image[at + 1] << 8 : image[at] << 8 | image[at + 1];
  };
  Entries entries;
  std::map<int, int> seen;
  for (std::size_t at = 4; at + 4 <= image.size();) {
    const int id = u16(at);
    const auto length = static_cast<std::size_t>(u16(at + 2));
    if (at + 4 + length > image.size()) {
      throw Trouble(path + ": at offset " + std::to_string(at) + " an item of " +
                    std::to_string(length) + " bytes passes the end (is the byte order right?)");
    }
    if (id != 0 || length != 0) {
      const int number = seen[id]++;
      const std::string name =
          "item " + std::to_string(id) + (number ? " (" + std::to_string(number + 1) + ")" : "");
      entries.emplace(
          name, std::to_string(length) + " bytes " + Hex(std::span(image).subspan(at + 4, length)));
    }
    at = (at + 4 + length + 3) / 4 * 4;
  }
  return entries;
}

}  // namespace

int Diff(const std::string& first, const std::string& second, bool littleEndian,
         std::ostream& out) {
  const auto firstBytes = ReadFile(first);
  const auto secondBytes = ReadFile(second);
  if (IsProject(firstBytes) != IsProject(secondBytes)) {
    throw Trouble("one is a project, the other an image");
  }
  const bool projects = IsProject(firstBytes);
  const Entries a =
      projects ? ProjectEntries(first) : ImageEntries(first, firstBytes, littleEndian);
  const Entries b =
      projects ? ProjectEntries(second) : ImageEntries(second, secondBytes, littleEndian);
  bool different = false;
  for (const auto& [name, value] : a) {
    const auto other = b.find(name);
    if (other == b.end()) {
      out << "- " << name << "  " << value << '\n';
    } else if (other->second != value) {
      out << "! " << name << "  " << value << "  ->  " << other->second << '\n';
    } else {
      continue;
    }
    different = true;
  }
  for (const auto& [name, value] : b) {
    if (a.contains(name)) continue;
    out << "+ " << name << "  " << value << '\n';
    different = true;
  }
  return different ? kDifferent : kOk;
}

}  // namespace merovane::tool
