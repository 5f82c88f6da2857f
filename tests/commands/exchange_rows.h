// Every command of one request, with arguments, the payloads on the wire, and what the caller gets.
#pragma once

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

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
  std::vector<std::string> logNames;
  std::uint32_t operation;
  std::uint32_t timeoutMs;  // 0: nothing is awaited
  struct {
    std::uint8_t type, subtype;
    Payload payload;
  } request;
  struct {
    std::uint8_t subtype;
    Payload payload;
  } answer;
  std::string delivered;
  Command command;
  // The codes that answers cut short may give, besides success.
  std::vector<Result> shortResults = {};
  // A failure that is not the link's own, and not logged.
  Result silence = Result::NoAnswer;
  // Stored when the exchange fails; otherwise nothing is.
  std::string failureStores = {};
};

// What stands before a command of no operation of its own.
inline constexpr std::uint32_t kOperationBefore = 99;
// The band that was set for multi-chip handsets.
inline constexpr std::uint16_t kBandBefore = 3;

template <typename T>
T Nulled(T value) {
  if constexpr (std::is_pointer_v<T>) return nullptr;
  return value;
}

// The caller is told nothing but the code.
template <typename... Parameters, typename... Values>
Command Does(Result (*command)(Phone&, Parameters...), Values... values) {
  Command does{[=](Phone& phone) {
    return Outcome{command(phone, static_cast<Parameters>(values)...), ""};
  }};
  if constexpr ((std::is_pointer_v<Values> || ...)) {
    does.runWithNull = [=](Phone& phone) {
      return command(phone, Nulled(static_cast<Parameters>(values))...);
    };
  }
  return does;
}

template <typename T = std::uint8_t, typename Function>
Command Gets(std::size_t count, Function command) {
  return {[count, command](Phone& phone) {
            GuardedBuffer<T> out(count);
            const Result result = command(phone, out.Data());
            return Outcome{result, out.Hex(count)};
          },
          [command](Phone& phone) { return command(phone, static_cast<T*>(nullptr)); }};
}

// In the byte order of `message`.
std::vector<Row> HandsetRows(const Fields& message);
std::vector<Row> CalibrationRows(const Fields& message);

}  // namespace merovane::test
