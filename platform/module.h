// Libraries loaded while running.
#pragma once

#include <cstdint>
#include <string_view>

namespace merovane::platform {

class Module {
 public:
  Module() = default;
  ~Module() { Free(); }
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;

  // `name` without prefix and ending ("Tollvane"). Looks beside this library first, then where the
  // system looks.
  bool Load(std::string_view name);
  bool IsLoaded() const { return handle_ != nullptr; }
  void* Find(const char* function) const;
  void Free();

 private:
  void* handle_ = nullptr;
};

}  // namespace merovane::platform
