#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

#include "platform/files.h"
#include "platform/system.h"

namespace merovane::platform::test {

ScratchDirectory::ScratchDirectory() {
  std::random_device random;
  path_ = TemporaryDirectory() / ("merovane-platform-" + std::to_string(random()));
  std::filesystem::create_directories(path_);
}

ScratchDirectory::~ScratchDirectory() {
  std::error_code error;
  std::filesystem::remove_all(path_, error);
}

std::string Content(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteContent(const std::filesystem::path& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
}

}  // namespace merovane::platform::test
