#include "project-generator/module_builder.h"

#include <cstdio>
#include <utility>

namespace merovane::projectgen {
namespace {

std::string_view NameOf(Type type) {
  switch (type) {
    case Type::Char:
      return "CHAR";
    case Type::Short:
      return "SHORT";
    case Type::Long:
      return "LONG";
    case Type::Array:
      return "ARRAY";
    case Type::String:
      return "STRING";
    case Type::Struct:
      return "STRUCT";
  }
  return "NONE";
}

}  // namespace

std::string DecimalIndex(std::uint32_t index) { return "[" + std::to_string(index) + "]"; }

std::string HexadecimalIndex(std::uint32_t index) {
  char text[16];
  std::snprintf(text, sizeof(text), "[0x%x]", index);
  return text;
}

ModuleBuilder::ModuleBuilder(std::string name, std::uint32_t firstId)
    : name_(std::move(name)), nextId_(firstId) {}

std::string ModuleBuilder::MemberPath(std::string_view name) const {
  if (open_.empty()) return std::string(name);
  return items_[static_cast<std::size_t>(open_.back())].path + "." + std::string(name);
}

std::int32_t ModuleBuilder::Add(std::string_view name, std::string path, Type type,
                                std::uint32_t length, std::string content) {
  const std::int32_t parent = open_.empty() ? -1 : open_.back();
  const std::uint32_t id = open_.empty() ? nextId_++ : 0;
  records_.push_back({std::string(name), id, type, 0, length, parent});
  items_.push_back({std::move(path), std::move(content)});
  return static_cast<std::int32_t>(records_.size()) - 1;
}

void ModuleBuilder::OpenStruct(std::string_view name) {
  open_.push_back(Add(name, MemberPath(name), Type::Struct, 0, ""));
}

void ModuleBuilder::CloseStruct() { open_.pop_back(); }

void ModuleBuilder::AddScalar(std::string_view name, Type type, std::string content) {
  Add(name, MemberPath(name), type, static_cast<std::uint32_t>(type), std::move(content));
}

void ModuleBuilder::AddString(std::string_view name, std::uint32_t length, std::string content) {
  Add(name, MemberPath(name), Type::String, length, std::move(content));
}

void ModuleBuilder::AddArray(std::string_view name, Type type, std::uint32_t count,
                             const ElementText& elementName, const ElementText& elementPath,
                             const ElementText& content) {
  const auto width = static_cast<std::uint32_t>(type);
  const std::string path = MemberPath(name);
  const std::int32_t array = Add(name, path, Type::Array, width * count, "");
  records_.back().size = count;
  open_.push_back(array);
  for (std::uint32_t i = 0; i < count; ++i) {
    Add(elementName(i), path + elementPath(i), type, width, content(i));
  }
  open_.pop_back();
}

void ModuleBuilder::AddArray(std::string_view name, Type type, std::uint32_t count,
                             const ElementText& content) {
  const auto elementName = [&](std::uint32_t i) { return std::string(name) + DecimalIndex(i); };
  AddArray(name, type, count, elementName, DecimalIndex, content);
}

std::string ModuleBuilder::Text() const {
  const std::string rule(80, '#');
  std::string text =
      "# Quorvantel Kestrane NV Module File, Format Version 1.0\r\n"
      "# WARNING: DO NOT EDIT OR DELETE THIS NV Module FILE!\r\n\r\n" +
      rule.substr(1) + "\r\n  MODULE      = " + name_ + "\r\n  DESCRIPTION = generated\r\n\r\n" +
      rule + "\r\n\r\n# Begin Module Item\r\n";
  for (std::size_t i = 0; i < records_.size(); ++i) {
    const Record& record = records_[i];
    const auto line = [&text](std::string_view key, std::string_view value) {
      text.append("    ITEM_").append(key).append(" = ").append(value).append("\r\n");
    };
    text += "  BEGIN_ITEM\r\n";
    line("NAME   ", record.name);
    line("ID     ", std::to_string(record.id));
    line("TYPE   ", std::to_string(static_cast<int>(record.type)) + " (" +
                        std::string(NameOf(record.type)) + ")");
    if (record.type == Type::Array) line("SIZE   ", std::to_string(record.size));
    line("LENGTH ", std::to_string(record.length));
    line("CONTENT", items_[i].content);
    line("INDEX  ", std::to_string(i));
    line("PARENT ", std::to_string(record.parent));
    line("DESC   ", record.type == Type::Array ? "table of " + std::to_string(record.size) : "");
    text += "  END_ITEM\r\n\r\n";
  }
  return text + "\r\n# End Module Item\r\n\r\n" + rule + "\r\n";
}

}  // namespace merovane::projectgen
