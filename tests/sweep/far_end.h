// A handset that never obeys, on a TCP port of this machine.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>
#include <thread>

#include "handset/handset.h"
#include "sweep/guarded_region.h"

namespace merovane::sweep {

enum class Manner {
  Refuses,
  // Answers with random payload of PayloadBytes.
  Answers,
  Silent,
  // Sends frames that nobody awaits, and noise, without end.
  Floods,
  // Begins each answer and goes no further.
  StopsInFrame,
};

class FarEnd {
 public:
  explicit FarEnd(std::int32_t port);
  FarEnd(const FarEnd&) = delete;
  FarEnd& operator=(const FarEnd&) = delete;
  ~FarEnd();

  void Behave(Manner manner);
  void AnswerWith(std::size_t payloadBytes) { payloadBytes_ = payloadBytes; }
  // Requests that were answered, in whatever manner.
  std::uint64_t Answered() const { return answered_; }

 private:
  void Edit(const handset::Frame& request, handset::Frame& answer);
  handset::Bytes Noise(std::size_t bytes);

  std::atomic<Manner> manner_{Manner::Refuses};
  std::atomic<std::size_t> payloadBytes_{0};
  std::atomic<std::uint64_t> answered_{0};
  std::uint32_t random_ = 1;
  handset::Handset handset_;
  std::string variable_;
  std::jthread flood_;
};

}  // namespace merovane::sweep
