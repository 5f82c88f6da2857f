#include "nvproject/module_reader.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace merovane::nvproject {
namespace {

// Finds the items of a module that is being read by their index.
class ParentIndex {
 public:
  // Takes the items one after the other, in the order of their positions.
  void Add(std::int32_t index) {
    const std::uint32_t position = count_++;
    if (inPlace_ == position && static_cast<std::uint32_t>(index) == position) {
      ++inPlace_;
    } else {
      outOfPlace_.try_emplace(index, position);
    }
  }

  // The position, in the module, of the first item of that index; kNoItem when there is none.
  std::uint32_t Find(std::int32_t index) const {
    if (static_cast<std::uint32_t>(index) < inPlace_) return static_cast<std::uint32_t>(index);
    const auto found = outOfPlace_.find(index);
    return found == outOfPlace_.end() ? kNoItem : found->second;
  }

 private:
  // Items normally stand at the position that their index names; a map is only
  // kept from the first one on that does not.
  std::uint32_t inPlace_ = 0;
  std::uint32_t count_ = 0;
  std::unordered_map<std::int32_t, std::uint32_t> outOfPlace_;
};

// Builds full paths in a buffer of its own.
class FullPathBuilder {
 public:
  // The path of an item that has a parent; `parent` is null when no item of that index is known,
  // and the path then starts empty. Cut to what a path holds; valid until the next call.
  std::string_view Build(const Item* parent, std::string_view name) {
    length_ = 0;
    const std::size_t bracket = name.find('[');
    const bool wholeName = KeepsWholeName(name, bracket);
    if (parent != nullptr) Append(parent->fullPath);
    const bool underArray = parent != nullptr && parent->type == ItemType::Array;
    if (!underArray || wholeName) Append(".");
    Append(wholeName || bracket == std::string_view::npos ? name : name.substr(bracket));
    return {buffer_.data(), length_};
  }

 private:
  // Elements of these names are members by their whole name, even under an array.
  static bool KeepsWholeName(std::string_view name, std::size_t bracket) {
    const auto contains = [name](std::string_view part) {
      return name.find(part) != std::string_view::npos;
    };
    if (bracket != std::string_view::npos && (contains("adc[") || contains("battery["))) {
      return true;
    }
    return contains("RF_ramp_up_table_stage") || contains("RF_ramp_down_table_stage");
  }

  void Append(std::string_view text) {
    length_ += text.copy(buffer_.data() + length_, buffer_.size() - length_);
  }

  std::array<char, kMaxFullPath> buffer_;
  std::size_t length_ = 0;
};

enum class Key {
  BeginItem,
  Name,
  Id,
  Type,
  Size,
  Length,
  Content,
  Index,
  Parent,
  Description,
  EndItem,
  ModuleName,
  ModuleDescription,
  Unknown,
};

// In the order in which files write them.
constexpr std::array<std::string_view, 13> kKeys = {
    "BEGIN_ITEM",  "ITEM_NAME",    "ITEM_ID",    "ITEM_TYPE",   "ITEM_SIZE",
    "ITEM_LENGTH", "ITEM_CONTENT", "ITEM_INDEX", "ITEM_PARENT", "ITEM_DESC",
    "END_ITEM",    "MODULE",       "DESCRIPTION"};

class ModuleReader {
 public:
  ModuleReader(KeyReader& lines, ModuleRecord& module, ItemStore& items)
      : lines_(lines), module_(module), items_(items) {}

  void Read() {
    items_.BeginModule();
    while (lines_.Next()) {
      const Key key = FindKey();
      if (key == Key::BeginItem) {
        BeginItem();
      } else if (key == Key::EndItem) {
        EndItem();
      } else if (key != Key::Unknown) {
        TakeValue(key, kKeys[static_cast<std::size_t>(key)]);
      }
    }
    if (inItem_) lines_.Report(item_.line, kNoEnd);
  }

 private:
  static constexpr const char* kNoEnd = "the item has no END_ITEM";

  Key FindKey();
  void TakeValue(Key key, std::string_view text);
  void BeginItem();
  void EndItem();
  void ReportItem(const Item* parent, std::string_view path);

  KeyReader& lines_;
  ModuleRecord& module_;
  ItemStore& items_;
  std::size_t nextKey_ = 0;
  ParentIndex parents_;
  FullPathBuilder fullPath_;
  bool inItem_ = false;
  // The item under construction. A key changes it wherever it stands; its texts but the content are
  // kept beside it.
  Item item_;
  std::string name_;
  std::string description_;
};

// Looks on from the last key: mostly it is the next one.
Key ModuleReader::FindKey() {
  for (std::size_t tried = 0; tried < kKeys.size(); ++tried) {
    const std::size_t at = nextKey_;
    nextKey_ = nextKey_ + 1 == kKeys.size() ? 0 : nextKey_ + 1;
    if (lines_.HasKey(kKeys[at])) return static_cast<Key>(at);
  }
  return Key::Unknown;
}

void ModuleReader::TakeValue(Key key, std::string_view text) {
  switch (key) {
    case Key::Name:
      return lines_.TakeWord(text, kMaxName, name_);
    case Key::Id:
      return lines_.TakeNumber(text, item_.id);
    case Key::Type:
      return lines_.TakeNumber(text, item_.type);
    case Key::Size:
      return lines_.TakeNumber(text, item_.size);
    case Key::Length:
      return lines_.TakeNumber(text, item_.length);
    case Key::Content:
      return lines_.TakeWord(text, kMaxText, item_.content);
    case Key::Index:
      return lines_.TakeNumber(text, item_.index);
    case Key::Parent:
      return lines_.TakeNumber(text, item_.parent);
    case Key::Description:
      // Kept to the letter: the blanks after "=" and the line end belong to it.
      if (const auto value = lines_.Value(text)) description_ = value->substr(0, kMaxText);
      return;
    case Key::ModuleName:
      return lines_.TakeWord(text, kMaxName, module_.name);
    case Key::ModuleDescription:
      return lines_.TakeWord(text, kMaxText, module_.description);
    default:
      return;
  }
}

void ModuleReader::BeginItem() {
  if (inItem_) lines_.Report(item_.line, kNoEnd);
  inItem_ = true;
  item_ = Item();
  item_.line = lines_.LineNumber();
  name_.clear();
  description_.clear();
}

void ModuleReader::EndItem() {
  if (!inItem_) item_.line = lines_.LineNumber();
  inItem_ = false;
  const Item* parent = nullptr;
  std::string_view path = name_;
  if (!item_.IsTopLevel()) {
    const std::uint32_t position = parents_.Find(item_.parent);
    if (position != kNoItem) parent = &items_[items_.Modules().back().first + position];
    path = fullPath_.Build(parent, name_);
  }
  ReportItem(parent, path);
  Item item = item_;
  item.fullPath = items_.Keep(path);
  // A path mostly ends with the whole name: one copy serves both.
  item.name =
      path.ends_with(name_) ? item.fullPath.substr(path.size() - name_.size()) : items_.Keep(name_);
  item.description = items_.Keep(description_);
  parents_.Add(item.index);
  items_.Append(std::move(item));
}

void ModuleReader::ReportItem(const Item* parent, std::string_view path) {
  if (!item_.IsTopLevel() && parent == nullptr) {
    lines_.Report(item_.line,
                  name_ + ": its parent " + std::to_string(item_.parent) + " does not precede it");
  }
  const std::uint32_t position = items_.Modules().back().count;
  if (item_.index != static_cast<std::int64_t>(position)) {
    lines_.Report(item_.line, name_ + ": its index " + std::to_string(item_.index) +
                                  " is not its position " + std::to_string(position));
  }
  if (path.size() == kMaxFullPath) lines_.Report(item_.line, name_ + ": its full path is cut");
}

}  // namespace

void ReadModule(KeyReader& lines, ModuleRecord& module, ItemStore& items) {
  ModuleReader(lines, module, items).Read();
}

}  // namespace merovane::nvproject
