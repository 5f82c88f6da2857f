// What a handset keeps when it is switched off: named items of bytes, such as "flash/0" or
// "nv/5". With a file, every change that was saved survives the program too: the file is
// replaced as a whole, so that it never holds half a change.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "wire/wire.h"

namespace handset {

class Storage {
 public:
  // An empty path keeps everything in memory. Throws std::runtime_error on a file that is there
  // and cannot be understood.
  void Open(const std::string& path, bool blank);

  // The item's bytes, or null when it was never written.
  const Bytes* Find(const std::string& name) const;
  void Put(const std::string& name, Bytes bytes);
  void Erase(const std::string& name);
  // Erases every item whose name begins so.
  void EraseAll(std::string_view prefix);

  // True the first time a part of the handset asks: then it writes what the factory would have.
  // On a blank handset nobody is asked to.
  bool NeedsFactoryData(const std::string& part);

  // Writes the file when something changed since the last time.
  void Save();

 private:
  std::string path_;
  std::map<std::string, Bytes> items_;
  std::set<std::string> made_;
  bool blank_ = false;
  bool changed_ = false;
};

}  // namespace handset
