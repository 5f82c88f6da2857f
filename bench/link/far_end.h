// Answers each request on a channel with the same bytes, from a thread of its own.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

namespace bench {

enum class ChannelKind { Pty, Tcp };

class FarEnd {
 public:
  // Every `requestBytes` bytes that come are answered with `answer`.
  FarEnd(ChannelKind kind, std::size_t requestBytes, std::vector<std::uint8_t> answer);
  FarEnd(const FarEnd&) = delete;
  FarEnd& operator=(const FarEnd&) = delete;
  ~FarEnd();

  // As a port's environment variable names it.
  std::string DeviceName() const { return name_; }
  // The near end opened without the channel library.
  int OpenBare() const;

 private:
  void Serve();

  ChannelKind kind_;
  std::size_t requestBytes_;
  std::vector<std::uint8_t> answer_;
  std::string name_;
  int listener_ = -1;
  int master_ = -1;
  int stop_[2] = {-1, -1};
  std::uint16_t port_ = 0;
  std::thread thread_;
};

// Writes the request, then polls and reads until the whole answer is there.
void ExchangeBare(int descriptor, const std::vector<std::uint8_t>& request,
                  std::size_t answerBytes);

// This thread, and those that it starts, on one core.
void PinToOneCore();

}  // namespace bench
