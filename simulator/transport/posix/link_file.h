// A symbolic link with a fixed name for a device whose own name changes. Without a name it
// stands in a temporary folder of its own. A name belongs to one handset of the machine at a time.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/name_claim.h"

namespace handset {

class LinkFile {
 public:
  // Throws std::runtime_error when another handset that runs has the name.
  explicit LinkFile(std::filesystem::path path);
  LinkFile(const LinkFile&) = delete;
  LinkFile& operator=(const LinkFile&) = delete;
  ~LinkFile();

  // Replaces what an earlier handset left; never anything but a symbolic link.
  void PointTo(const std::filesystem::path& target);
  void Remove();
  const std::filesystem::path& Path() const { return path_; }

 private:
  void Claim();

  std::filesystem::path path_;
  std::filesystem::path ownFolder_;
  std::unique_ptr<merovane::platform::NameClaim> claim_;
};

}  // namespace handset
