#include "transport/posix/link_file.h"

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <utility>

namespace handset {
namespace fs = std::filesystem;

LinkFile::LinkFile(fs::path path) : path_(std::move(path)) {
  if (!path_.empty()) return;
  std::string pattern = (fs::temp_directory_path() / "merovane-handset-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) {
    throw std::runtime_error("cannot make a folder for the port's link: " + pattern);
  }
  ownFolder_ = pattern;
  path_ = ownFolder_ / "port";
}

LinkFile::~LinkFile() {
  Remove();
  std::error_code ignored;
  if (!ownFolder_.empty()) fs::remove(ownFolder_, ignored);
}

void LinkFile::PointTo(const fs::path& target) {
  std::error_code error;
  const auto status = fs::symlink_status(path_, error);
  if (fs::exists(status) && !fs::is_symlink(status)) {
    throw std::runtime_error(path_.string() + " is there and is not a link");
  }
  // Renamed into place: a station never finds half a change.
  fs::path next = path_.string() + ".new";
  fs::remove(next, error);
  fs::create_symlink(target, next, error);
  if (!error) fs::rename(next, path_, error);
  if (error) throw std::runtime_error("cannot link " + path_.string() + ": " + error.message());
}

void LinkFile::Remove() {
  std::error_code ignored;
  if (fs::is_symlink(path_, ignored)) fs::remove(path_, ignored);
}

}  // namespace handset
