#include "nvproject/module_reader.h"

#include <array>
#include <utility>

namespace merovane::nvproject {

enum class ModuleReader::Key {
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

namespace {

// In the order in which files write them.
constexpr std::array<std::string_view, 13> kKeys = {
    "BEGIN_ITEM",  "ITEM_NAME",    "ITEM_ID",    "ITEM_TYPE",   "ITEM_SIZE",
    "ITEM_LENGTH", "ITEM_CONTENT", "ITEM_INDEX", "ITEM_PARENT", "ITEM_DESC",
    "END_ITEM",    "MODULE",       "DESCRIPTION"};

}  // namespace

// Looks on from the last key: mostly it is the next one.
ModuleReader::Key ModuleReader::FindKey(const KeyLine& line) {
  for (std::size_t tried = 0; tried < kKeys.size(); ++tried) {
    const std::size_t at = nextKey_;
    nextKey_ = nextKey_ + 1 == kKeys.size() ? 0 : nextKey_ + 1;
    if (line.HasKey(kKeys[at])) return static_cast<Key>(at);
  }
  return Key::Unknown;
}

void ModuleReader::Read(ModuleRecord& module) {
  items_.BeginModule();
  std::string_view text;
  while (lines_.Next(text)) {
    const KeyLine line(text);
    if (!line.HasKey()) continue;
    const Key key = FindKey(line);
    if (key == Key::BeginItem) {
      BeginItem();
    } else if (key == Key::EndItem) {
      EndItem();
    } else if (key != Key::Unknown) {
      const auto value = line.ValueOf(kKeys[static_cast<std::size_t>(key)]);
      if (value) TakeValue(key, *value, module);
    }
  }
}

void ModuleReader::TakeValue(Key key, std::string_view value, ModuleRecord& module) {
  switch (key) {
    case Key::Name:
      return TakeWord(value, kMaxName, name_);
    case Key::Id:
      return TakeNumber(value, item_.id);
    case Key::Type:
      return TakeNumber(value, item_.type);
    case Key::Size:
      return TakeNumber(value, item_.size);
    case Key::Length:
      return TakeNumber(value, item_.length);
    case Key::Content:
      return TakeWord(value, kMaxText, item_.content);
    case Key::Index:
      return TakeNumber(value, item_.index);
    case Key::Parent:
      return TakeNumber(value, item_.parent);
    case Key::Description:
      // Kept to the letter: the blanks after "=" and the line end belong to it.
      description_ = value.substr(0, kMaxText);
      return;
    case Key::ModuleName:
      return TakeWord(value, kMaxName, module.name);
    case Key::ModuleDescription:
      return TakeWord(value, kMaxText, module.description);
    default:
      return;
  }
}

void ModuleReader::BeginItem() {
  item_ = Item();
  name_.clear();
  description_.clear();
}

void ModuleReader::EndItem() {
  const Item* parent = nullptr;
  std::string_view path = name_;
  if (!item_.IsTopLevel()) {
    const std::uint32_t position = parents_.Find(item_.parent);
    if (position != kNoItem) parent = &items_[items_.Modules().back().first + position];
    path = fullPath_.Build(parent, name_);
  }
  Item item = item_;
  TextArena& texts = items_.Texts();
  item.fullPath = texts.Add(path);
  // A path mostly ends with the whole name: one copy serves both.
  item.name =
      path.ends_with(name_) ? item.fullPath.substr(path.size() - name_.size()) : texts.Add(name_);
  item.description = texts.Add(description_);
  parents_.Add(item.index);
  items_.Append(std::move(item));
}

}  // namespace merovane::nvproject
