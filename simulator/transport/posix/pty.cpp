// A pseudo-terminal under a symbolic link whose name stays.
#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <asio/posix/stream_descriptor.hpp>
#include <asio/steady_timer.hpp>
#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <utility>

#include "transport/posix/link_file.h"
#include "transport/stream_pump.h"
#include "transport/transport.h"

namespace handset {
namespace {

using asio::posix::stream_descriptor;

// The system tells when a station lets go of a pseudo-terminal, but not when one takes it.
constexpr std::chrono::milliseconds kLookForStation{5};
constexpr std::chrono::milliseconds kRetry{100};

[[noreturn]] void Fail(const char* step) {
  throw std::runtime_error(std::string("cannot make a pseudo-terminal: ") + step + ": " +
                           std::strerror(errno));
}

// The station's end, held only while something is done to it: an end that is always held would
// hide whether a station is there.
class StationEnd {
 public:
  explicit StationEnd(const std::string& path)
      : fd_(open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK)) {}
  StationEnd(const StationEnd&) = delete;
  StationEnd& operator=(const StationEnd&) = delete;
  ~StationEnd() {
    if (fd_ >= 0) close(fd_);
  }

  bool IsOpen() const { return fd_ >= 0; }
  bool MakeRaw() const {
    termios settings{};
    if (fd_ < 0 || tcgetattr(fd_, &settings) != 0) return false;
    cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL | CREAD;
    cfsetspeed(&settings, B115200);
    return tcsetattr(fd_, TCSANOW, &settings) == 0;
  }
  int Unread() const {
    int count = 0;
    return fd_ >= 0 && ioctl(fd_, FIONREAD, &count) == 0 ? count : 0;
  }
  void DropUnread() const {
    if (fd_ >= 0) tcflush(fd_, TCIFLUSH);
  }

 private:
  int fd_;
};

class PtyPort final : public Transport {
 public:
  PtyPort(asio::io_context& io, const PortOptions& options, TransportEvents events)
      : io_(io), timer_(io), link_(options.link), events_(std::move(events)) {}

  ~PtyPort() override {
    if (pump_) pump_->Close();
  }

  void Appear() override {
    const int fd = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (fd < 0) Fail("open");
    stream_descriptor master(io_, fd);
    if (grantpt(fd) != 0 || unlockpt(fd) != 0) Fail("unlock");
    char name[64];
    if (ptsname_r(fd, name, sizeof name) != 0) Fail("name");
    if (!StationEnd(name).MakeRaw()) Fail("set raw");
    link_.PointTo(name);
    device_ = name;
    pump_ = std::make_shared<StreamPump<stream_descriptor>>(
        std::move(master), [this](auto bytes) { events_.received(bytes); },
        [this] { StationLeft(); });
    LookForStation();
  }

  void Vanish() override {
    link_.Remove();
    timer_.cancel();
    lost_ = false;
    if (pump_) std::exchange(pump_, nullptr)->Close();
    SetConnected(false);
  }

  bool CutConnection() override { return false; }
  bool Connected() const override { return connected_; }
  bool Drained() const override {
    return !connected_ || (Backlog() == 0 && StationEnd(device_).Unread() == 0);
  }
  std::size_t Backlog() const override { return pump_ ? pump_->Backlog() : 0; }

  void Write(Bytes bytes) override {
    if (connected_) pump_->Write(std::move(bytes));
  }

  std::string Address() const override { return link_.Path().string(); }

 private:
  void LookForStation() {
    pollfd state{pump_->Native().native_handle(), POLLIN, 0};
    poll(&state, 1, 0);
    const bool present = (state.revents & POLLHUP) == 0;
    // A station may have come, written and gone between two looks.
    if (present || (state.revents & POLLIN) != 0) {
      SetConnected(present);
      pump_->Read();
      return;
    }
    timer_.expires_after(kLookForStation);
    timer_.async_wait([this](const asio::error_code& error) {
      if (!error && pump_) LookForStation();
    });
  }

  void StationLeft() {
    SetConnected(false);
    pump_->DropBacklog();
    if (DropUnread()) {
      LookForStation();
      return;
    }
    // A station that died with the device in exclusive mode leaves it locked for good.
    std::exchange(pump_, nullptr)->Close();
    lost_ = true;
    Replace();
  }

  // What nobody read must not greet the next station. The end is let go of before anyone looks
  // for that one.
  bool DropUnread() const {
    const StationEnd end(device_);
    end.DropUnread();
    return end.IsOpen();
  }

  // Another device under the same link, as soon as the system has one.
  void Replace() {
    try {
      Appear();
      lost_ = false;
    } catch (const std::runtime_error&) {
      link_.Remove();
      timer_.expires_after(kRetry);
      timer_.async_wait([this](const asio::error_code& error) {
        if (!error && lost_) Replace();
      });
    }
  }

  void SetConnected(bool connected) {
    if (std::exchange(connected_, connected) != connected) events_.connection(connected);
  }

  asio::io_context& io_;
  asio::steady_timer timer_;
  LinkFile link_;
  TransportEvents events_;
  std::string device_;
  std::shared_ptr<StreamPump<stream_descriptor>> pump_;
  bool connected_ = false;
  bool lost_ = false;  // the device is to be replaced
};

}  // namespace

std::unique_ptr<Transport> MakePty(asio::io_context& io, const PortOptions& options,
                                   TransportEvents events) {
  return std::make_unique<PtyPort>(io, options, std::move(events));
}

}  // namespace handset
