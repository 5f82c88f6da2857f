#include "sweep/call.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <limits>

namespace merovane::sweep {
namespace {

using Role = Argument::Role;

constexpr std::int64_t kPlainCount = 8;

thread_local const Call* running = nullptr;

// Texts are numbered, so that they vary as numbers do.
constexpr std::array<std::string_view, 4> kTexts{"1", "", "no\\such\\path", "%s%n"};
constexpr std::size_t kLongTextBytes = 70'000;
constexpr std::int64_t kTextKinds = kTexts.size() + 1;

std::string TextOf(std::int64_t kind) {
  const auto place = static_cast<std::size_t>(kind);
  return place < kTexts.size() ? std::string(kTexts[place]) : std::string(kLongTextBytes, 'A');
}

std::int64_t PlainValue(const Argument& argument, std::uint32_t durationMs) {
  switch (argument.role) {
    case Role::Duration:
      return durationMs;
    case Role::Number:
      return std::clamp(argument.isCount ? kPlainCount : 1, argument.low, argument.high);
    default:
      // What a pointer leads to is a count now and then.
      return argument.isCount ? kPlainCount : 0;
  }
}

bool IsSigned(const Argument& argument) { return argument.low < 0; }

// As the argument's type has it.
std::int64_t Wrapped(const Argument& argument, std::int64_t value) {
  const auto bits = static_cast<unsigned>(8 * argument.bytes);
  const auto low = static_cast<std::uint64_t>(value) & ((std::uint64_t{1} << bits) - 1);
  const bool negative = argument.bytes == 4 && IsSigned(argument) && (low >> 31) != 0;
  return static_cast<std::int64_t>(low) - (negative ? std::int64_t{1} << 32 : 0);
}

std::vector<std::int64_t> ValuesOf(const Argument& argument) {
  switch (argument.role) {
    case Role::Duration:
      return {argument.low, 1};
    case Role::Handle:
      return {0};
    case Role::Number: {
      std::vector<std::int64_t> values;
      for (const std::int64_t value :
           {std::int64_t{0}, std::int64_t{1}, argument.low - 1, argument.low, argument.high,
            argument.high + 1, std::int64_t{-1},
            std::int64_t{std::numeric_limits<std::int32_t>::min()},
            std::int64_t{std::numeric_limits<std::int32_t>::max()}}) {
        values.push_back(Wrapped(argument, value));
      }
      std::ranges::sort(values);
      values.erase(std::unique(values.begin(), values.end()), values.end());
      return values;
    }
    case Role::Text: {
      std::vector<std::int64_t> kinds;
      for (std::int64_t kind = 0; kind < kTextKinds; ++kind) kinds.push_back(kind);
      return kinds;
    }
    default:
      return {};
  }
}

}  // namespace

std::vector<std::optional<Variation>> VariationsOf(const Export& which) {
  std::vector<std::optional<Variation>> all{std::nullopt};
  for (std::size_t at = 0; at < which.arguments.size(); ++at) {
    const Argument& argument = which.arguments[at];
    if (argument.IsPointer()) all.push_back(Variation{at, 0, true});
    // The port is the far end's.
    if (at == 0 && which.takesPort) continue;
    for (const std::int64_t value : ValuesOf(argument)) all.push_back(Variation{at, value, false});
  }
  return all;
}

std::span<std::byte> Memory::Buffer(std::size_t slot, std::size_t bytes) {
  while (regions_.size() <= slot) regions_.emplace_back();
  return regions_[slot].Last(bytes);
}

Call::Call(const Export& which, std::int32_t port, const std::optional<Variation>& variation,
           std::uint32_t durationMs, Memory& memory)
    : which_(which), buffers_(which.arguments.size()), variation_(variation) {
  for (const Argument& argument : which.arguments) {
    words_.push_back(
        static_cast<Word>(argument.IsPointer() ? 0 : PlainValue(argument, durationMs)));
  }
  if (which.takesPort) words_.front() = static_cast<Word>(port);
  if (variation && !which.arguments[variation->argument].IsPointer()) {
    words_[variation->argument] = static_cast<Word>(variation->value);
  }
  PlaceMemory(variation, memory);
}

// Numbers first, since extents read them.
void Call::PlaceMemory(const std::optional<Variation>& variation, Memory& memory) {
  for (const bool extended : {false, true}) {
    for (std::size_t at = 0; at < words_.size(); ++at) {
      const Argument& argument = which_.arguments[at];
      if (!argument.IsPointer() || (argument.extent != nullptr) != extended) continue;
      const bool varied = variation && variation->argument == at;
      std::size_t bytes = argument.bytes;
      std::string text;
      if (argument.role == Role::Text) {
        text = TextOf(varied ? variation->value : 0);
        bytes = text.size() + 1;
      } else if (extended) {
        const std::size_t count = argument.extent(words_);
        // A count that must be refused says nothing of the memory.
        const std::size_t most = GuardedRegion::kBytes / argument.bytes;
        if (count > most && !MustBeRefused()) canBeMade_ = false;
        bytes = count > most ? argument.bytes : count * argument.bytes;
      }
      const std::span<std::byte> buffer = memory.Buffer(at, bytes);
      const int fill = argument.role == Role::Out ? 0xA5 : 0;
      std::memset(buffer.data(), fill, buffer.size());
      if (!text.empty()) std::memcpy(buffer.data(), text.data(), text.size());
      if (argument.isCount) {
        const auto count = static_cast<std::uint32_t>(kPlainCount);
        std::memcpy(buffer.data(), &count, std::min(sizeof count, buffer.size()));
      }
      buffers_[at] = buffer;
      words_[at] = reinterpret_cast<Word>(buffer.data());
    }
  }
  if (variation && variation->null) words_[variation->argument] = 0;
}

bool Call::MustBeRefused() const {
  if (!variation_) return false;
  const Argument& argument = which_.arguments[variation_->argument];
  if (variation_->null) return !argument.mayBeNull;
  return argument.bounded &&
         (variation_->value < argument.low || variation_->value > argument.high);
}

std::uint32_t Call::LimitMs() const {
  std::uint32_t sum = 0;
  for (std::size_t at = 0; at < words_.size(); ++at) {
    if (which_.arguments[at].role == Role::Duration) sum += static_cast<std::uint32_t>(words_[at]);
  }
  return sum;
}

std::string Call::Text() const {
  std::string text(which_.name);
  text += '(';
  for (std::size_t at = 0; at < words_.size(); ++at) {
    const Argument& argument = which_.arguments[at];
    if (at > 0) text += ", ";
    text += std::string(argument.name) + ' ';
    if (!argument.IsPointer()) {
      text += std::to_string(Wrapped(argument, static_cast<std::int64_t>(words_[at])));
    } else if (words_[at] == 0) {
      text += "null";
    } else {
      text += "of " + std::to_string(buffers_[at].size()) + " bytes";
    }
  }
  return text + ')';
}

const Call* Call::Running() { return running; }

Call::Outcome Call::Make() {
  std::vector<std::vector<std::byte>> before(buffers_.size());
  for (std::size_t at = 0; at < buffers_.size(); ++at) {
    const Role role = which_.arguments[at].role;
    if (role == Role::In || role == Role::Text) {
      before[at].assign(buffers_[at].begin(), buffers_[at].end());
    }
  }
  Outcome outcome{};
  running = this;
  const auto start = std::chrono::steady_clock::now();
  outcome.result = which_.call(words_, outcome.stackMoved);
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
  running = nullptr;
  outcome.milliseconds = took.count();
  for (std::size_t at = 0; at < buffers_.size(); ++at) {
    if (!before[at].empty() && !std::ranges::equal(before[at], buffers_[at])) {
      outcome.changed = which_.arguments[at].name;
    }
  }
  return outcome;
}

}  // namespace merovane::sweep
