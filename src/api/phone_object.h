// What a port number stands for: a phone, and all that its exports keep.
#pragma once

#include "commands/phone.h"

namespace merovane::api {

struct PhoneObject : Phone {
  using Phone::Phone;
};

}  // namespace merovane::api
