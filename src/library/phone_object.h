// What a port number stands for: a phone, and all that its exports keep.
#pragma once

#include <memory>

#include "commands/phone.h"
#include "nvproject/file_parser.h"

namespace merovane::library {

struct PhoneObject : Phone {
  using Phone::Phone;

  std::unique_ptr<nvproject::CFileParser> project;  // none while no NV project is open
};

}  // namespace merovane::library
