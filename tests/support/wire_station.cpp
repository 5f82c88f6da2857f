#include "support/wire_station.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <stdexcept>

namespace merovane::test {
namespace {

using handset::Bytes;
using handset::Frame;

using Clock = std::chrono::steady_clock;

int OpenDevice(const std::string& path) {
  const int fd = open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  termios settings{};
  if (fd < 0 || tcgetattr(fd, &settings) != 0) throw std::runtime_error("cannot open " + path);
  cfmakeraw(&settings);
  tcsetattr(fd, TCSANOW, &settings);
  return fd;
}

int Connect(const std::string& address) {
  sockaddr_in handset{};
  handset.sin_family = AF_INET;
  handset.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  handset.sin_port =
      htons(static_cast<std::uint16_t>(std::stoi(address.substr(address.find(':') + 1))));
  const int fd = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (connect(fd, reinterpret_cast<sockaddr*>(&handset), sizeof handset) == 0) return fd;
  close(fd);
  throw std::runtime_error("cannot connect to " + address);
}

std::chrono::milliseconds Remaining(Clock::time_point deadline) {
  return std::max(std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()), 0ms);
}

}  // namespace

WireStation::WireStation(const std::string& address, bool bigEndian)
    : fd_(address.front() == '/' ? OpenDevice(address) : Connect(address)),
      order_(bigEndian ? handset::ByteOrder::Big : handset::ByteOrder::Little),
      decoder_(
          order_, [this](Frame frame) { frames_.push_back(std::move(frame)); },
          [](std::string_view, const Bytes&) {}) {}

WireStation::~WireStation() { close(fd_); }

void WireStation::WriteRaw(const Bytes& bytes) const {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t count = write(fd_, bytes.data() + done, bytes.size() - done);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return;  // The line was cut: the reading side notices.
    done += static_cast<std::size_t>(count);
  }
}

void WireStation::Send(std::uint8_t type, std::uint8_t subtype, const Bytes& payload,
                       std::uint32_t sequence) {
  WriteRaw(handset::EncodeFrame({type, subtype, payload, sequence}, order_));
}

std::optional<Frame> WireStation::Receive(std::chrono::milliseconds timeout) {
  const auto deadline = Clock::now() + timeout;
  while (frames_.empty()) {
    const Bytes more = ReadRaw(Remaining(deadline));
    if (more.empty()) return std::nullopt;
    decoder_.Feed(more);
  }
  Frame frame = std::move(frames_.front());
  frames_.pop_front();
  return frame;
}

std::optional<Frame> WireStation::ReceiveType(std::uint8_t type) {
  const auto deadline = Clock::now() + kPatience;
  auto frame = Receive();
  while (frame && frame->type != type) frame = Receive(Remaining(deadline));
  return frame;
}

std::optional<Frame> WireStation::Ask(std::uint8_t type, std::uint8_t subtype,
                                      const Bytes& payload) {
  Send(type, subtype, payload);
  return Receive();
}

Bytes WireStation::ReadRaw(std::chrono::milliseconds timeout) const {
  const auto deadline = Clock::now() + timeout;
  Bytes bytes(4096);
  ssize_t count = -1;
  do {
    pollfd state{fd_, POLLIN, 0};
    const int ready = poll(&state, 1, static_cast<int>(Remaining(deadline).count()));
    if (ready == 0) return {};
    if (ready > 0) count = read(fd_, bytes.data(), bytes.size());
  } while (count < 0 && errno == EINTR);
  bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
  return bytes;
}

bool WireStation::WaitForHangup() const {
  const auto deadline = Clock::now() + kPatience;
  while (!ReadRaw(Remaining(deadline)).empty()) {
  }
  return Clock::now() < deadline;
}

}  // namespace merovane::test
