#include "nvproject/module_reader.h"

#include <utility>

#include "nvproject/key_line.h"

namespace merovane::nvproject {

void ModuleReader::Read(ModuleRecord& module) {
  items_.BeginModule();
  std::string_view text;
  while (lines_.Next(text)) {
    const KeyLine line = SplitLine(text);
    if (line.key == "BEGIN_ITEM") {
      BeginItem();
    } else if (line.key == "END_ITEM") {
      EndItem();
    } else if (line.value) {
      TakeValue(line.key, *line.value, module);
    }
  }
  items_.ShrinkToFit();
}

void ModuleReader::TakeValue(std::string_view key, std::string_view value, ModuleRecord& module) {
  if (key == "ITEM_NAME") {
    TakeWord(value, kMaxName, name_);
  } else if (key == "ITEM_ID") {
    TakeNumber(value, item_.id);
  } else if (key == "ITEM_TYPE") {
    TakeNumber(value, item_.type);
  } else if (key == "ITEM_SIZE") {
    TakeNumber(value, item_.size);
  } else if (key == "ITEM_LENGTH") {
    TakeNumber(value, item_.length);
  } else if (key == "ITEM_CONTENT") {
    TakeWord(value, kMaxText, item_.content);
  } else if (key == "ITEM_INDEX") {
    TakeNumber(value, item_.index);
  } else if (key == "ITEM_PARENT") {
    TakeNumber(value, item_.parent);
  } else if (key == "ITEM_DESC") {
    // Kept to the letter: the blanks after "=" and the line end belong to it.
    description_ = value.substr(0, kMaxText);
  } else if (key == "MODULE") {
    TakeWord(value, kMaxName, module.name);
  } else if (key == "DESCRIPTION") {
    TakeWord(value, kMaxText, module.description);
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
