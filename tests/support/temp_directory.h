// A directory that ends with the test.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace merovane::test {

class TempDirectory {
 public:
  TempDirectory()
      : path_(std::filesystem::temp_directory_path() /
              ("merovane-test-" + std::to_string(std::random_device{}()) + "-" +
               std::to_string(std::random_device{}()))) {
    std::filesystem::create_directories(path_);
  }
  TempDirectory(const TempDirectory&) = delete;
  TempDirectory& operator=(const TempDirectory&) = delete;
  ~TempDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }
  void Write(std::string_view name, std::string_view text) const {
    std::ofstream(path_ / name, std::ios::binary) << text;
  }

 private:
  std::filesystem::path path_;
};

inline std::string FileText(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace merovane::test
