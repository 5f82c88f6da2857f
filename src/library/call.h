// One call of an exported function: how it went, and what is kept of it when it failed.
#pragma once

#include <cstdint>
#include <optional>

#include "link/phone_link.h"

namespace merovane::library {

// What stands in an export's declaration.
struct ExportInfo {
  const char* name;
  std::uint32_t operation;  // 0: none
  const char* refusals;     // what PC_ERR_INVALID_PARAM is given for, in words
};

// Every exported function that returns a result makes one first thing.
class Call {
 public:
  // The limit is the one that the caller gave, 0 for none.
  Call(const ExportInfo& info, std::int32_t port, std::uint32_t limitMs);
  ~Call();
  Call(const Call&) = delete;
  Call& operator=(const Call&) = delete;

  // To the call that runs on this thread, from where its link can be looked at: what the link can
  // say of a failure. A later one replaces it.
  static void Note(const PhoneLink& link) noexcept;

  // Keeps what is known when the result is none of success, and gives the result back.
  std::int32_t Returned(std::int32_t result) noexcept;

 private:
  const ExportInfo& info_;
  const std::int32_t port_;
  const std::uint32_t limitMs_;
  const std::uint32_t startMs_;
  Call* const outer_;
  std::optional<LinkEvidence> evidence_;
};

}  // namespace merovane::library
