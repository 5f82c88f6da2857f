// What a port number stands for: a phone, all that its exports keep, and who may use it when.
#pragma once

#include <memory>

#include "commands/phone.h"
#include "library/mode_process.h"
#include "library/turnstile.h"
#include "nvproject/file_parser.h"

namespace merovane::library {

struct PhoneObject : Phone {
  using Phone::Phone;

  // One thread at a time has the link and the state of commands, another one the project: a project
  // need not wait for a handset.
  Turnstile commandTurns;
  Turnstile projectTurns;

  std::unique_ptr<nvproject::CFileParser> project;  // none while no NV project is open
  ModeProcess modeProcess;
};

}  // namespace merovane::library
