// Writes JSON: one value after another, with the commas that they need.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace merovane {

class JsonWriter {
 public:
  explicit JsonWriter(std::string& text) : text_(text) {}

  JsonWriter& BeginObject() { return Open('{'); }
  JsonWriter& EndObject() { return Close('}'); }
  JsonWriter& BeginArray() { return Open('['); }
  JsonWriter& EndArray() { return Close(']'); }
  // Ahead of a member's value.
  JsonWriter& Key(std::string_view name);
  // Bytes that are no UTF-8 are taken for Latin-1, so that every text gives valid JSON.
  JsonWriter& Text(std::string_view value);
  JsonWriter& Number(std::int64_t value);
  JsonWriter& Flag(bool value);
  JsonWriter& Null();

 private:
  JsonWriter& Open(char bracket);
  JsonWriter& Close(char bracket);
  void Separate();
  void Quote(std::string_view value);

  std::string& text_;
  bool first_ = true;  // no comma is due
};

}  // namespace merovane
