#include "transport/posix/link_file.h"

#include <stdexcept>
#include <string>
#include <utility>

#include "platform/files.h"

namespace handset {
namespace fs = std::filesystem;
namespace platform = merovane::platform;

LinkFile::LinkFile(fs::path path) : path_(std::move(path)) {
  if (!path_.empty()) {
    Claim();
    return;
  }
  ownFolder_ = platform::MakeTemporaryDirectory("merovane-handset-");
  if (ownFolder_.empty()) {
    throw std::runtime_error("cannot make a folder for the port's link in " +
                             platform::TemporaryDirectory().string());
  }
  path_ = ownFolder_ / "port";
}

void LinkFile::Claim() {
  std::error_code ignored;
  const fs::path whole = fs::weakly_canonical(fs::absolute(path_).parent_path(), ignored);
  const std::size_t hash = fs::hash_value(whole / path_.filename());
  claim_ = platform::ClaimName("merovane-handset-" + std::to_string(hash));
  if (!claim_) throw std::runtime_error("another handset has the link " + path_.string());
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
