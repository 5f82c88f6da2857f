#include "transport/posix/link_file.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <utility>

namespace handset {
namespace fs = std::filesystem;

LinkFile::LinkFile(fs::path path) : path_(std::move(path)) {
  if (!path_.empty()) {
    Claim();
    return;
  }
  std::string pattern = (fs::temp_directory_path() / "merovane-handset-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) {
    throw std::runtime_error("cannot make a folder for the port's link: " + pattern);
  }
  ownFolder_ = pattern;
  path_ = ownFolder_ / "port";
}

// By the address of a socket that nobody talks to: the system frees it with the program, however
// that ends, and nothing of it stays on the disk.
void LinkFile::Claim() {
  std::error_code ignored;
  const fs::path whole = fs::weakly_canonical(fs::absolute(path_).parent_path(), ignored);
  const std::size_t hash = fs::hash_value(whole / path_.filename());
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  // A name that starts with a zero stands in no folder.
  const int length = std::snprintf(address.sun_path + 1, sizeof address.sun_path - 1,
                                   "merovane-handset-%zx", hash);
  claim_ = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 +
                                           static_cast<std::size_t>(length));
  if (bind(claim_, reinterpret_cast<const sockaddr*>(&address), size) == 0) return;
  close(claim_);
  throw std::runtime_error("another handset has the link " + path_.string());
}

LinkFile::~LinkFile() {
  Remove();
  if (claim_ >= 0) close(claim_);
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
