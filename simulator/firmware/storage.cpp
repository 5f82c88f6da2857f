#include "firmware/storage.h"

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <utility>

namespace handset {
namespace {

constexpr int kFormatVersion = 1;

}  // namespace

void Storage::Open(const std::string& path, bool blank) {
  path_ = path;
  blank_ = blank;
  changed_ = true;
  if (path.empty() || blank || !std::filesystem::exists(path)) return;
  const auto fail = [&](const std::string& reason) {
    throw std::runtime_error("cannot read handset state " + path + ": " + reason);
  };
  try {
    std::ifstream file(path);
    if (!file) fail("it cannot be opened");
    const auto json = nlohmann::json::parse(file);
    if (json.at("version") != kFormatVersion) fail("it is of another version");
    for (const auto& part : json.at("made")) made_.insert(part.get<std::string>());
    for (const auto& [name, hex] : json.at("items").items()) {
      items_[name] = FromHex(hex.get<std::string>());
    }
  } catch (const nlohmann::json::exception&) {
    fail("it is not a state file of a simulated handset");
  } catch (const std::invalid_argument& error) {
    fail(error.what());
  }
  changed_ = false;
}

const Bytes* Storage::Find(const std::string& name) const {
  const auto found = items_.find(name);
  return found == items_.end() ? nullptr : &found->second;
}

void Storage::Put(const std::string& name, Bytes bytes) {
  items_[name] = std::move(bytes);
  changed_ = true;
}

void Storage::Erase(const std::string& name) { changed_ |= items_.erase(name) > 0; }

void Storage::EraseAll(std::string_view prefix) {
  changed_ |= std::erase_if(items_, [&](const auto& item) {
                return std::string_view(item.first).starts_with(prefix);
              }) > 0;
}

bool Storage::NeedsFactoryData(const std::string& part) {
  if (!made_.insert(part).second) return false;
  changed_ = true;
  return !blank_;
}

void Storage::Save() {
  if (!changed_ || path_.empty()) return;
  nlohmann::json json;
  json["version"] = kFormatVersion;
  json["made"] = made_;
  json["items"] = nlohmann::json::object();
  for (const auto& [name, bytes] : items_) json["items"][name] = ToHex(bytes);

  const std::string next = path_ + ".new";
  {
    std::ofstream file(next, std::ios::trunc);
    file << json.dump(1) << '\n';
    file.flush();
    if (!file) throw std::runtime_error("cannot write handset state " + next);
  }
  std::filesystem::rename(next, path_);
  changed_ = false;
}

}  // namespace handset
