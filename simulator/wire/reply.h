// What a test makes the handset say instead of its usual answer:
//   Reply::Answer(13, 0, bytes).After(50ms).ThenRaw(noise).InPieces(1, 2ms)
// The modifiers act on the item added last.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "wire/wire.h"

namespace handset {

class Reply {
 public:
  struct Item {
    std::variant<Frame, Bytes> content;
    std::chrono::milliseconds delay{0};  // after the item before it
    std::size_t pieceBytes = 0;
    std::chrono::milliseconds gap{0};
  };

  static Reply Nothing() { return {}; }
  static Reply Answer(std::uint8_t type, std::uint8_t subtype, Bytes payload = {}) {
    return Reply().Then(type, subtype, std::move(payload));
  }
  static Reply Raw(Bytes bytes) { return Reply().ThenRaw(std::move(bytes)); }

  Reply Then(std::uint8_t type, std::uint8_t subtype, Bytes payload = {}) && {
    items_.push_back(Item{Frame{type, subtype, std::move(payload)}});
    return std::move(*this);
  }
  Reply ThenRaw(Bytes bytes) && {
    items_.push_back(Item{std::move(bytes)});
    return std::move(*this);
  }
  Reply After(std::chrono::milliseconds delay) && {
    items_.back().delay = delay;
    return std::move(*this);
  }
  Reply InPieces(std::size_t pieceBytes, std::chrono::milliseconds gap = {}) && {
    items_.back().pieceBytes = pieceBytes;
    items_.back().gap = gap;
    return std::move(*this);
  }

  const std::vector<Item>& Items() const { return items_; }

 private:
  std::vector<Item> items_;
};

// Nothing returned: the handset answers as usual.
using ReplyMaker = std::function<std::optional<Reply>(const Frame& request)>;

}  // namespace handset
