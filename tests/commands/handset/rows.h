// Every command that asks a handset for one thing and awaits one answer, with arguments, both
// payloads on the wire, and what the caller gets.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "commands/crc16.h"
#include "commands/handset/bluetooth.h"
#include "commands/handset/dsp_debug.h"
#include "commands/handset/fixed_nv.h"
#include "commands/handset/flash_nv.h"
#include "commands/handset/gps.h"
#include "commands/handset/identification.h"
#include "commands/handset/peripherals.h"
#include "declared/phone_mode.h"
#include "commands/handset/production_block.h"
#include "commands/handset/registers.h"
#include "commands/handset/serial_number.h"
#include "commands/handset/wifi.h"
#include "support/command_fixture.h"

namespace merovane::test {

// What a run gives: its code and, in hexadecimal, the caller's buffer, "A5" where untouched.
struct Outcome {
  Result result;
  std::string delivered;
};

struct Command {
  std::function<Outcome(Phone&)> run;
  // The same without its data; empty when it takes none.
  std::function<Result(Phone&)> runWithNull = {};
};

struct Row {
  const char* logName;
  std::uint32_t operation;
  std::uint32_t timeoutMs;
  struct {
    std::uint8_t type, subtype;
    Bytes payload;
  } request;
  struct {
    std::uint8_t subtype;
    Bytes payload;
  } answer;
  std::string delivered;
  Command command;
  // The codes that answers cut short may give, besides success.
  std::vector<Result> shortResults = {};
  // A failure that is not the link's own, and not logged.
  Result silence = Result::NoAnswer;
};

inline constexpr std::uint32_t kOperationBefore = 99;
// Logs nothing of its own.
inline constexpr const char* kNoLog = "";

// In the byte order of `message`.
std::vector<Row> Rows(const Fields& message);

}  // namespace merovane::test
