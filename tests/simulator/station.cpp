#include "simulator/station.h"

#include <fcntl.h>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace station {
namespace {

using Clock = std::chrono::steady_clock;

int OpenDevice(const std::string& path) {
  int fd = open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  termios settings{};
  if (fd < 0 || tcgetattr(fd, &settings) != 0) throw std::runtime_error("cannot open " + path);
  cfmakeraw(&settings);
  tcsetattr(fd, TCSANOW, &settings);
  return fd;
}

int Connect(const std::string& host, const std::string& port) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (getaddrinfo(host.c_str(), port.c_str(), &hints, &found) != 0) {
    throw std::runtime_error("cannot resolve " + host);
  }
  int fd = socket(found->ai_family, SOCK_STREAM | SOCK_CLOEXEC, 0);
  bool connected = connect(fd, found->ai_addr, found->ai_addrlen) == 0;
  freeaddrinfo(found);
  if (!connected) {
    close(fd);
    throw std::runtime_error("cannot connect to " + host + ":" + port);
  }
  return fd;
}

int Remaining(Clock::time_point deadline) {
  auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
  return static_cast<int>(std::max<decltype(left)>(left, 0));
}

}  // namespace

Station::Station(const std::string& address, bool bigEndian) : bigEndian_(bigEndian) {
  size_t colon = address.rfind(':');
  fd_ = address.front() == '/' ? OpenDevice(address)
                               : Connect(address.substr(0, colon), address.substr(colon + 1));
}

Station::~Station() { close(fd_); }

void Station::WriteRaw(const Bytes& bytes) const {
  size_t done = 0;
  while (done < bytes.size()) {
    ssize_t count = write(fd_, bytes.data() + done, bytes.size() - done);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return;  // The line was cut: the reading side notices.
    done += static_cast<size_t>(count);
  }
}

void Station::Send(uint8_t type, uint8_t subtype, const Bytes& payload, uint32_t sequence) {
  size_t total = payload.size() + 8;
  auto low = static_cast<uint8_t>(total & 0xFF);
  auto high = static_cast<uint8_t>(total >> 8);
  Bytes raw;
  for (int shift = 0; shift < 32; shift += 8)
    raw.push_back(static_cast<uint8_t>(sequence >> shift));
  raw.push_back(bigEndian_ ? high : low);
  raw.push_back(bigEndian_ ? low : high);
  raw.push_back(type);
  raw.push_back(subtype);
  raw.insert(raw.end(), payload.begin(), payload.end());
  Bytes wire{0x7E};
  for (uint8_t byte : raw) {
    if (byte == 0x7D || byte == 0x7E) {
      wire.push_back(0x7D);
      wire.push_back(byte == 0x7D ? 0x5D : 0x5E);
    } else {
      wire.push_back(byte);
    }
  }
  wire.push_back(0x7E);
  WriteRaw(wire);
}

std::optional<Packet> Station::Receive(std::chrono::milliseconds timeout) {
  auto deadline = Clock::now() + timeout;
  for (;;) {
    auto open = std::find(pending_.begin(), pending_.end(), 0x7E);
    auto shut = open == pending_.end() ? open : std::find(open + 1, pending_.end(), 0x7E);
    if (shut != pending_.end()) {
      Bytes raw;
      for (auto at = open + 1; at != shut; ++at) {
        raw.push_back(*at == 0x7D ? static_cast<uint8_t>(*++at ^ 0x20) : *at);
      }
      // A piece that is no packet leaves its last flag to open the next one.
      bool whole = raw.size() >= 8;
      pending_.erase(pending_.begin(), whole ? shut + 1 : shut);
      if (!whole) continue;
      size_t length = bigEndian_ ? raw[4] << 8 | raw[5] : raw[5] << 8 | raw[4];
      if (length != raw.size()) throw std::runtime_error("wrong length field");
      return Packet{raw[6], raw[7], Bytes(raw.begin() + 8, raw.end())};
    }
    Bytes more = ReadRaw(std::chrono::milliseconds(Remaining(deadline)));
    if (more.empty()) return std::nullopt;
    pending_.insert(pending_.end(), more.begin(), more.end());
  }
}

std::optional<Packet> Station::ReceiveType(uint8_t type, std::chrono::milliseconds timeout) {
  auto deadline = Clock::now() + timeout;
  for (;;) {
    auto packet = Receive(std::chrono::milliseconds(Remaining(deadline)));
    if (!packet || packet->type == type) return packet;
  }
}

std::optional<Packet> Station::Ask(uint8_t type, uint8_t subtype, const Bytes& payload) {
  Send(type, subtype, payload);
  return Receive();
}

Bytes Station::ReadRaw(std::chrono::milliseconds timeout) {
  auto deadline = Clock::now() + timeout;
  for (;;) {
    pollfd state{fd_, POLLIN, 0};
    int ready = poll(&state, 1, Remaining(deadline));
    if (ready < 0 && errno == EINTR) continue;
    if (ready <= 0) return {};
    Bytes bytes(4096);
    ssize_t count = read(fd_, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    bytes.resize(count > 0 ? static_cast<size_t>(count) : 0);
    return bytes;
  }
}

bool Station::WaitForHangup(std::chrono::milliseconds timeout) {
  auto deadline = Clock::now() + timeout;
  while (Clock::now() < deadline) {
    pollfd state{fd_, POLLIN, 0};
    if (poll(&state, 1, Remaining(deadline)) <= 0) continue;
    Bytes bytes(4096);
    if (read(fd_, bytes.data(), bytes.size()) <= 0) return true;
  }
  return false;
}

bool WaitForPath(const std::string& path, bool present, std::chrono::milliseconds timeout) {
  auto deadline = Clock::now() + timeout;
  while (std::filesystem::exists(path) != present) {
    if (Clock::now() >= deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

}  // namespace station
