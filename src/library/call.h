// One call of an exported function: how it went, and what is kept and told of it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <type_traits>

#include "link/exchange.h"
#include "link/phone_link.h"

namespace merovane::library {

// An argument as its declaration has it.
struct ArgumentInfo {
  enum class Kind : std::uint8_t {
    Signed,    // by value
    Unsigned,  // by value
    Text,      // ends with a zero
    Characters,
    Bytes,    // and records
    Number,   // one, where a pointer leads
    Numbers,  // of 2 or 4 bytes
    Room,     // for what arrives, whose length nothing tells
  };
  enum class Use : std::uint8_t { Value, In, Out, InOut };
  // How many elements stand where a pointer leads, by the arguments' words.
  using Count = std::uint64_t (*)(const std::uintptr_t* words);

  const char* name;
  Kind kind;
  Use use;
  std::uint32_t elementBytes;
  Count count = nullptr;     // null: one
  std::int32_t stored = -1;  // the argument that tells how many arrived, a number of 4 bytes
};

inline constexpr std::size_t kMostArguments = 8;

// What stands in an export's declaration.
struct ExportInfo {
  enum class Returns : std::uint8_t { Result, Number, Nothing };

  const char* name;
  std::uint32_t operation;  // 0: none
  Returns returns;
  const char* refusals;  // what PC_ERR_INVALID_PARAM is given for, in words
  // But for the port.
  std::span<const ArgumentInfo> arguments;
};

// An argument's value, a pointer's too, in one word.
template <typename Value>
std::uintptr_t Word(Value value) {
  if constexpr (std::is_pointer_v<Value>) {
    return reinterpret_cast<std::uintptr_t>(value);
  } else {
    return static_cast<std::uintptr_t>(static_cast<std::intptr_t>(value));
  }
}

struct FailedCall;

// Every exported function makes one first thing.
class Call {
 public:
  // `words` are the arguments', but for the port, and outlive the call. The limit is the one that
  // the caller gave, 0 for none.
  Call(const ExportInfo& info, std::int32_t port, std::uint32_t limitMs,
       const std::uintptr_t* words);
  ~Call();
  Call(const Call&) = delete;
  Call& operator=(const Call&) = delete;

  // To the call that runs on this thread, from where its link can be looked at: what the link can
  // say of a failure. A later one replaces it.
  static void Note(const PhoneLink& link) noexcept;
  // The call that runs on this thread names no port and has reached the default one.
  static void Reached(std::int32_t port);
  // Where the exchanges of the call that runs on this thread are to be noted; null: nowhere.
  static ExchangeList* Exchanges();
  // The call that runs on this thread ends a session: a program may end next.
  static void EndsSession();

  // Keeps what is known of a failure, tells the recorder, and gives the result back.
  std::int32_t Returned(std::int32_t result) noexcept;

 private:
  std::int32_t Port() const;
  void Tell(std::int32_t result, const std::optional<FailedCall>& failure);

  const ExportInfo& info_;
  const std::int32_t port_;
  const std::uint32_t limitMs_;
  const std::uintptr_t* const words_;
  // By the clock of time limits, so that a wait that took its whole limit is not told as less.
  const std::uint32_t begunMs_;
  Call* const outer_;
  const bool recorded_;
  const Exchange::Clock::time_point begun_;  // where it is recorded
  bool endsSession_ = false;
  std::int32_t reachedPort_ = 0;
  std::optional<LinkEvidence> evidence_;
  ExchangeList exchanges_;
};

}  // namespace merovane::library
