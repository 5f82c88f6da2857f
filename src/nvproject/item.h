// The records of a loaded NV project: its header, its modules and their items.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace merovane::nvproject {

// A scalar's code is its width in bytes; 3 names no type. Files can hold any number here.
enum class ItemType : std::uint32_t {
  None = 0,
  Char = 1,
  Short = 2,
  Long = 4,
  Array = 5,
  String = 6,
  Struct = 7,
};

// Width of a scalar's value in bytes; 0 for every other type.
constexpr std::uint32_t ScalarWidth(ItemType type) {
  switch (type) {
    case ItemType::Char:
    case ItemType::Short:
    case ItemType::Long:
      return static_cast<std::uint32_t>(type);
    default:
      return 0;
  }
}

// The name that module files write beside a type's code.
constexpr std::string_view TypeName(ItemType type) {
  switch (type) {
    case ItemType::Char:
      return "CHAR";
    case ItemType::Short:
      return "SHORT";
    case ItemType::Long:
      return "LONG";
    case ItemType::Array:
      return "ARRAY";
    case ItemType::String:
      return "STRING";
    case ItemType::Struct:
      return "STRUCT";
    default:
      return "NONE";
  }
}

// The most characters that each text keeps; longer ones are cut.
inline constexpr std::size_t kMaxName = 63;
inline constexpr std::size_t kMaxFilePath = 259;
inline constexpr std::size_t kMaxText = 255;  // descriptions and contents
inline constexpr std::size_t kMaxFullPath = 511;

// The parent of a top-level item.
inline constexpr std::int32_t kNoParent = -1;

// No item: what a search that fails answers.
inline constexpr std::uint32_t kNoItem = 0xFFFFFFFF;

// The texts but the content belong to the store: they never change.
struct Item {
  // The layout's: the place in its top-level item, or a structure's alignment.
  std::uint32_t offset = 0;
  std::int32_t index = 0;   // where the item is stored when it is written back
  std::int32_t parent = 0;  // the parent's index
  std::uint32_t id = 0;
  ItemType type = ItemType::None;
  std::uint32_t size = 0;  // elements of an array
  std::uint32_t length = 0;
  std::uint32_t pathHash = 0;  // of the full path, letter case ignored
  std::uint32_t line = 0;      // where it begins in its module file
  std::string_view name;
  std::string_view description;
  std::string_view fullPath;
  std::string content;

  bool IsTopLevel() const { return parent == kNoParent; }
  bool operator==(const Item&) const = default;
};

struct ModuleRecord {
  std::string name;
  std::string path;
  std::string description;
};

struct ProjectRecord {
  std::string name;
  std::string path;
  std::string target;
  std::string description;
  std::int32_t alignment = 0;
};

}  // namespace merovane::nvproject
