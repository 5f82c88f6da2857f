// Who answers which command. A type and subtype may have several handlers, which are all called
// in the order in which they registered: some commands mean one thing to several parts of the
// handset. A handler of a whole type hears the subtypes that nobody named.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "wire/wire.h"

namespace handset {

class Registry {
 public:
  using Handler = std::function<void(const Frame&)>;

  void On(std::uint8_t type, std::uint8_t subtype, Handler handler) {
    exact_[{type, subtype}].push_back(std::move(handler));
  }
  void OnType(std::uint8_t type, Handler handler) {
    wholeTypes_[type].push_back(std::move(handler));
  }

  // For commands whose answers carry another type than they do: a refusal goes by that type.
  void SetAnswerType(std::uint8_t request, std::uint8_t answer) { answerTypes_[request] = answer; }
  std::uint8_t AnswerType(std::uint8_t request) const {
    auto found = answerTypes_.find(request);
    return found == answerTypes_.end() ? request : found->second;
  }

  // AT commands, in capitals, that begin so: the handler gives the line before the "OK", empty for
  // none, or nothing when the command is wrong.
  using AtHandler = std::function<std::optional<std::string>(const std::string&)>;
  void OnAt(std::string prefix, AtHandler handler) {
    at_.emplace_back(std::move(prefix), std::move(handler));
  }
  const AtHandler* AtHandlerOf(const std::string& command) const {
    for (const auto& [prefix, handler] : at_) {
      if (command.starts_with(prefix)) return &handler;
    }
    return nullptr;
  }

  // Everything else is not heard before a start mode was chosen.
  void AllowWhileBooting(std::uint8_t type) { whileBooting_.insert(type); }
  bool AllowedWhileBooting(std::uint8_t type) const { return whileBooting_.contains(type); }

  // False when nobody knows the command.
  bool Dispatch(const Frame& frame) const {
    auto exact = exact_.find({frame.type, frame.subtype});
    if (exact != exact_.end()) return Call(exact->second, frame);
    auto whole = wholeTypes_.find(frame.type);
    return whole != wholeTypes_.end() && Call(whole->second, frame);
  }

 private:
  static bool Call(const std::vector<Handler>& handlers, const Frame& frame) {
    for (const Handler& handler : handlers) handler(frame);
    return true;
  }

  std::map<std::pair<std::uint8_t, std::uint8_t>, std::vector<Handler>> exact_;
  std::map<std::uint8_t, std::vector<Handler>> wholeTypes_;
  std::map<std::uint8_t, std::uint8_t> answerTypes_;
  std::set<std::uint8_t> whileBooting_;
  std::vector<std::pair<std::string, AtHandler>> at_;
};

}  // namespace handset
