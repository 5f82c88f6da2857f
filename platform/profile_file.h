// Private-profile settings files ("Name.ini") by the rules of Windows on every
// system: names compare without regard to case, blanks round names and values
// are trimmed, one pair of quotation marks round a value is stripped, the first
// section of a name wins, and in it the first key.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace merovane::platform {

class ProfileFile {
 public:
  // Reads the file whole. One that is missing, a directory or unreadable is like an empty
  // one. A byte-order mark is skipped (UTF-16 text is taken too).
  static ProfileFile Load(const std::filesystem::path& path);
  static ProfileFile Parse(std::string text);

  // The key's value; `fallback` when section or key is missing.
  std::string Text(std::string_view section, std::string_view key, std::string_view fallback) const;
  // The value read as far as its decimal digits go (a sign may lead; "0x" leads hexadecimal
  // digits, "0o" octal and "0b" binary ones, in small letters only), in 32 bits; 0 for a value
  // without digits, `fallback` when the key is missing or empty.
  std::uint32_t Integer(std::string_view section, std::string_view key,
                        std::uint32_t fallback) const;

  struct Entry {
    std::string section;
    std::string key;
    std::string value;
    bool counts = false;  // whether Text and Integer find it under its names
  };
  // All that the file says, in its order. A section without keys is one entry without a key.
  std::vector<Entry> Entries() const;
  // Whether Integer takes all of the value for a number.
  static bool IsInteger(std::string_view value);
  static bool SameName(std::string_view a, std::string_view b);

 private:
  std::string text_;
};

}  // namespace merovane::platform
