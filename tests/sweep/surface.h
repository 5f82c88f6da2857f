// Every exported function as data: how to call it with machine words, and what its declaration says
// of its arguments, its results and its time limit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "merovane/merovane.h"

namespace merovane::sweep {

// A number, or a pointer.
using Word = std::uintptr_t;
using Words = std::span<const Word>;

struct Argument {
  enum class Role { Number, Duration, Handle, Text, In, Out, InOut };

  bool IsPointer() const { return role >= Role::Text; }

  std::string_view name;
  Role role;
  std::size_t bytes;  // of the number, or of one element that the pointer leads to
  // Elements at the pointer; null: one. Numbers behind pointers stand in their memory by then.
  std::size_t (*extent)(Words words);
  bool isCount;  // the extent of another one
  // What is taken; `bounded` says whether the declaration tells.
  std::int64_t low;
  std::int64_t high;
  bool bounded;
  bool mayBeNull;
};

struct Export {
  enum class Kind { Command, Session, Project };

  std::string_view name;
  Kind kind;
  bool takesPort;
  bool reachesHandset;
  std::int64_t (*call)(Words words, bool& stackMoved);
  std::span<const Argument> arguments;
  std::span<const std::int32_t> results;  // empty: it returns no result
  std::uint32_t limitMs;                  // beside what the arguments say
  // Times that the limit and the arguments' may pass in one call; 1 where the declaration is plain.
  std::uint32_t rounds;
};

std::span<const Export> Surface();

// What a callee that takes the wrong number of arguments from the stack changes.
inline std::uintptr_t StackPointer() {
#if defined(__i386__)
  std::uintptr_t value;
  asm volatile("movl %%esp, %0" : "=r"(value));
  return value;
#else
  return 0;
#endif
}

template <typename T>
T FromWord(Word word) {
  if constexpr (std::is_pointer_v<T>) {
    return reinterpret_cast<T>(word);  // NOLINT(performance-no-int-to-ptr): it was one
  } else {
    return static_cast<T>(word);
  }
}

template <typename R, typename... A, std::size_t... I>
std::int64_t CallWith(R(MEROVANE_CALL* function)(A...), Words words, bool& stackMoved,
                      std::index_sequence<I...>) {
  const std::uintptr_t before = StackPointer();
  std::int64_t result = 0;
  if constexpr (std::is_void_v<R>) {
    function(FromWord<A>(words[I])...);
  } else {
    result = function(FromWord<A>(words[I])...);
  }
  stackMoved = StackPointer() != before;
  return result;
}

template <typename R, typename... A>
std::int64_t CallWith(R(MEROVANE_CALL* function)(A...), Words words, bool& stackMoved) {
  return CallWith(function, words, stackMoved, std::index_sequence_for<A...>());
}

}  // namespace merovane::sweep
