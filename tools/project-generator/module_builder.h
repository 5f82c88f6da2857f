// Collects the items of one NV module and writes them as a module file.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace merovane::projectgen {

// An item with its path as a user of the project writes it.
struct GeneratedItem {
  std::string path;
  std::string content;
};

enum class Type { Char = 1, Short = 2, Long = 4, Array = 5, String = 6, Struct = 7 };

class ModuleBuilder {
 public:
  ModuleBuilder(std::string name, std::uint32_t firstId);

  // Structures nest until they are closed. Outside of them items are top-level ones.
  void OpenStruct(std::string_view name);
  void CloseStruct();
  void AddScalar(std::string_view name, Type type, std::string content);
  void AddString(std::string_view name, std::uint32_t length, std::string content);

  using ElementText = std::function<std::string(std::uint32_t index)>;
  // `elementName` gives the whole names; `elementPath` what follows the array's path.
  void AddArray(std::string_view name, Type type, std::uint32_t count,
                const ElementText& elementName, const ElementText& elementPath,
                const ElementText& content);
  // Elements with a decimal index.
  void AddArray(std::string_view name, Type type, std::uint32_t count, const ElementText& content);

  std::size_t Count() const { return records_.size(); }
  const std::vector<GeneratedItem>& Items() const { return items_; }
  std::string Text() const;

 private:
  struct Record {
    std::string name;
    std::uint32_t id;
    Type type;
    std::uint32_t size;
    std::uint32_t length;
    std::int32_t parent;
  };

  std::string MemberPath(std::string_view name) const;
  std::int32_t Add(std::string_view name, std::string path, Type type, std::uint32_t length,
                   std::string content);

  std::string name_;
  std::uint32_t nextId_;
  std::vector<std::int32_t> open_;
  std::vector<Record> records_;
  std::vector<GeneratedItem> items_;
};

std::string DecimalIndex(std::uint32_t index);
std::string HexadecimalIndex(std::uint32_t index);

}  // namespace merovane::projectgen
