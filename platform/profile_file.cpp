#include "platform/profile_file.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

#include "platform/ascii.h"
#include "platform/text.h"

namespace merovane::platform {
namespace {

// More than any settings file holds, and little enough to read.
constexpr std::size_t kMostBytes = 1U << 20;

// 0x1A ends text files of old editors.
constexpr std::string_view kBlanks = " \t\v\f\x1A";
constexpr std::string_view kLineEnds = "\r\n";

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool SameText(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, ToLower, ToLower);
}

std::string_view Unquoted(std::string_view value) {
  const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                      value.back() == value.front();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

// Takes the next line that is neither blank nor a comment, trimmed; an empty one at the end.
std::string_view NextLine(std::string_view& rest) {
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find_first_of(kLineEnds), rest.size());
    const std::string_view line = Trim(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (!line.empty() && line.front() != ';') return line;
  }
  return {};
}

std::optional<std::string_view> Find(std::string_view text, std::string_view section,
                                     std::string_view key) {
  section = Trim(section);
  key = Trim(key);
  bool inSection = false;
  for (std::string_view line = NextLine(text); !line.empty(); line = NextLine(text)) {
    if (line.front() == '[') {
      // Only the first section of a name counts.
      if (inSection) return std::nullopt;
      line.remove_prefix(1);
      inSection = SameText(Trim(line.substr(0, line.find(']'))), section);
    } else if (inSection) {
      const std::size_t equals = line.find('=');
      if (equals != std::string_view::npos && SameText(Trim(line.substr(0, equals)), key)) {
        return Unquoted(Trim(line.substr(equals + 1)));
      }
    }
  }
  return std::nullopt;
}

// Takes "0x", "0o" or "0b" off; small letters only, as Windows takes them.
std::uint32_t TakeBase(std::string_view& digits) {
  if (digits.size() < 2 || digits[0] != '0') return 10;
  const char letter = digits[1];
  const std::uint32_t base = letter == 'x' ? 16 : letter == 'o' ? 8 : letter == 'b' ? 2 : 10;
  if (base != 10) digits.remove_prefix(2);
  return base;
}

// Takes the number off the value's head.
std::uint32_t TakeInteger(std::string_view& value) {
  while (!value.empty() && value.front() >= 0 && value.front() <= ' ') value.remove_prefix(1);
  const bool negative = value.starts_with('-');
  if (negative || value.starts_with('+')) value.remove_prefix(1);
  const std::uint32_t base = TakeBase(value);
  std::uint32_t number = 0;
  while (!value.empty() && DigitValue(value.front()) < base) {
    number = number * base + DigitValue(value.front());
    value.remove_prefix(1);
  }
  return negative ? 0U - number : number;
}

std::u16string Utf16Of(std::string_view bytes, bool bigEndian) {
  std::u16string text(bytes.size() / 2, u'\0');
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto first = static_cast<unsigned char>(bytes[2 * i]);
    const auto second = static_cast<unsigned char>(bytes[2 * i + 1]);
    text[i] = static_cast<char16_t>(bigEndian ? first << 8 | second : second << 8 | first);
  }
  return text;
}

}  // namespace

ProfileFile ProfileFile::Load(const std::filesystem::path& path) {
  // Only a regular file: opening a pipe would wait for its writer.
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return {};
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  std::ifstream file(path, std::ios::binary);
  if (!file || error) return {};
  std::string text(static_cast<std::size_t>(std::min<std::uintmax_t>(size, kMostBytes)), '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(file.gcount()));
  // A line that was cut must not be taken for a whole one.
  if (size > kMostBytes) text.resize(text.find_last_of(kLineEnds) + 1);
  return Parse(std::move(text));
}

ProfileFile ProfileFile::Parse(std::string text) {
  ProfileFile profile;
  const std::string_view all = text;
  if (all.starts_with("\xEF\xBB\xBF")) {
    text.erase(0, 3);
  } else if (all.starts_with("\xFF\xFE") || all.starts_with("\xFE\xFF")) {
    text = NarrowFromUtf16(Utf16Of(all.substr(2), all.front() == '\xFE'));
  }
  profile.text_ = std::move(text);
  return profile;
}

std::string ProfileFile::Text(std::string_view section, std::string_view key,
                              std::string_view fallback) const {
  return std::string(Find(text_, section, key).value_or(fallback));
}

std::uint32_t ProfileFile::Integer(std::string_view section, std::string_view key,
                                   std::uint32_t fallback) const {
  auto value = Find(text_, section, key);
  return value && !value->empty() ? TakeInteger(*value) : fallback;
}

std::vector<ProfileFile::Entry> ProfileFile::Entries() const {
  std::vector<Entry> entries;
  std::string section;
  std::string_view rest = text_;
  for (std::string_view line = NextLine(rest); !line.empty(); line = NextLine(rest)) {
    if (line.front() == '[') {
      line.remove_prefix(1);
      section = Trim(line.substr(0, line.find(']')));
      entries.push_back({section, {}, {}, false});
      continue;
    }
    const std::size_t equals = line.find('=');
    const std::string key(Trim(line.substr(0, equals)));
    const std::string_view value =
        equals == std::string_view::npos ? "" : Unquoted(Trim(line.substr(equals + 1)));
    // The very one that is found, not another of the same names.
    const auto found = Find(text_, section, key);
    entries.push_back({section, key, std::string(value), found && found->data() == value.data()});
  }
  return entries;
}

bool ProfileFile::IsInteger(std::string_view value) {
  const std::size_t before = value.size();
  std::string_view rest = value;
  TakeInteger(rest);
  return rest.empty() && before > 0 && DigitValue(value.back()) < 16;
}

bool ProfileFile::SameName(std::string_view a, std::string_view b) { return SameText(a, b); }

}  // namespace merovane::platform
