#include "nvproject/project_text.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>

namespace merovane::nvproject {
namespace {

constexpr std::string_view kEditWarning = "# WARNING: DO NOT EDIT OR DELETE THIS PROJECT FILE!\n";

class TextBuilder {
 public:
  TextBuilder& operator<<(std::string_view text) {
    text_ += text;
    return *this;
  }
  TextBuilder& operator<<(std::int32_t number) {
    std::array<char, 12> digits;
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return *this << std::string_view(digits.data(), end);
  }
  // Files show every number as a signed one.
  TextBuilder& operator<<(std::uint32_t number) {
    return *this << static_cast<std::int32_t>(number);
  }
  TextBuilder& Rule(std::size_t width) {
    text_.append(width, '#') += '\n';
    return *this;
  }
  void Reserve(std::size_t bytes) { text_.reserve(bytes); }
  // With the files' line ends.
  std::string Take() const {
    std::string result;
    result.reserve(text_.size() + text_.size() / 16);
    for (const char c : text_) {
      if (c == '\n') result += '\r';
      result += c;
    }
    return result;
  }

 private:
  std::string text_;
};

void AddItem(TextBuilder& out, const Item& item) {
  out << "  BEGIN_ITEM\n"
      << "    ITEM_NAME    = " << item.name << "\n"
      << "    ITEM_ID      = " << item.id << "\n"
      << "    ITEM_TYPE    = " << static_cast<std::uint32_t>(item.type) << " ("
      << TypeName(item.type) << ")\n";
  if (item.type == ItemType::Array) out << "    ITEM_SIZE    = " << item.size << "\n";
  out << "    ITEM_LENGTH  = " << item.length << "\n"
      << "    ITEM_CONTENT = " << item.content << "\n"
      << "    ITEM_INDEX   = " << item.index << "\n"
      << "    ITEM_PARENT  = " << item.parent << "\n"
      << "    ITEM_DESC    = " << item.description << "\n"
      << "  END_ITEM\n\n";
}

}  // namespace

std::string NewProjectText(const ProjectRecord& project) {
  TextBuilder out;
  out << "Quorvantel Kestrane Project File, Format Version 1.0\n" << kEditWarning << "\n";
  out.Rule(80) << "\nProject: \"" << project.name << "\"\n"
               << "\n# PROP Alignment " << project.alignment << "\n";
  if (!project.target.empty()) out << "# PROP Output_Dir \"" << project.target << "\"\n";
  out << "\n";
  out.Rule(80) << "\n# Begin Project Module\n\n# End Project Module\n\n";
  out.Rule(80);
  return out.Take();
}

std::string ProjectText(const ProjectRecord& project, std::span<const ModuleRecord> modules) {
  TextBuilder out;
  out << "# Quorvantel Kestrane Project File, Format Version 1.0\n" << kEditWarning << "\n";
  out.Rule(80) << "  PROJECT     =  " << project.name << "\n"
               << "  ALIGNMENT   =  " << project.alignment << "\n"
               << "  TARGET      =  " << project.target << "\n"
               << "  DESCRIPTION =  " << project.description << "\n"
               << "\n";
  out.Rule(80) << "\n# Begin Project Module\n\n";
  for (const ModuleRecord& module : modules) out << "  MODULE     =  " << module.path << "\n";
  out << "\n# End Project Module\n\n";
  out.Rule(80);
  return out.Take();
}

std::string ModuleText(const ModuleRecord& module, const ItemStore& items, std::size_t number) {
  const auto [first, count] = items.Modules()[number];
  TextBuilder out;
  out.Reserve(std::size_t{count} * 256 + 1024);
  out << "# Quorvantel Kestrane NV Module File, Format Version 1.0\n"
      << "# WARNING: DO NOT EDIT OR DELETE THIS NV Module FILE!\n"
      << "\n";
  // One character shorter than every other rule: that is how these files begin.
  out.Rule(79) << "  MODULE      = " << module.name << "\n"
               << "  DESCRIPTION = " << module.description << "\n"
               << "\n";
  out.Rule(80) << "\n# Begin Module Item\n";
  for (std::uint32_t i = first; i < first + count; ++i) AddItem(out, items[i]);
  out << "\n# End Module Item\n\n";
  out.Rule(80);
  return out.Take();
}

}  // namespace merovane::nvproject
