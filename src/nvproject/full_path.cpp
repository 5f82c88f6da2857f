#include "nvproject/full_path.h"

namespace merovane::nvproject {
namespace {

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

// Elements of these names are members by their whole name, even under an array.
bool KeepsWholeName(std::string_view name, std::size_t bracket) {
  if (bracket != std::string_view::npos && (Contains(name, "adc[") || Contains(name, "battery["))) {
    return true;
  }
  return Contains(name, "RF_ramp_up_table_stage") || Contains(name, "RF_ramp_down_table_stage");
}

}  // namespace

std::string_view FullPathBuilder::Build(const Item* parent, std::string_view name) {
  length_ = 0;
  const std::size_t bracket = name.find('[');
  const bool wholeName = KeepsWholeName(name, bracket);
  if (parent != nullptr) Append(parent->fullPath);
  const bool underArray = parent != nullptr && parent->type == ItemType::Array;
  if (!underArray || wholeName) Append(".");
  Append(wholeName || bracket == std::string_view::npos ? name : name.substr(bracket));
  return {buffer_.data(), length_};
}

void FullPathBuilder::Append(std::string_view text) {
  length_ += text.copy(buffer_.data() + length_, buffer_.size() - length_);
}

}  // namespace merovane::nvproject
