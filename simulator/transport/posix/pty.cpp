// A pseudo-terminal under a symbolic link whose name stays.
#include <asio/posix/stream_descriptor.hpp>
#include <asio/steady_timer.hpp>
#include <stdexcept>
#include <utility>

#include "platform/device_handle.h"
#include "platform/pseudo_terminal.h"
#include "transport/posix/link_file.h"
#include "transport/stream_pump.h"
#include "transport/transport.h"

namespace handset {
namespace {

using asio::posix::stream_descriptor;
namespace platform = merovane::platform;

// The system tells when a station lets go of a pseudo-terminal, but not when one takes it.
constexpr std::chrono::milliseconds kLookForStation{5};
constexpr std::chrono::milliseconds kRetry{100};

class PtyPort final : public Transport {
 public:
  PtyPort(asio::io_context& io, const PortOptions& options, TransportEvents events)
      : io_(io), timer_(io), link_(options.link), events_(std::move(events)) {}

  ~PtyPort() override { Close(); }

  void Appear() override {
    std::string whyNot;
    auto terminal = platform::MakePseudoTerminal(whyNot);
    if (!terminal) throw std::runtime_error("cannot make a pseudo-terminal: " + whyNot);
    const auto handle = static_cast<int>(platform::SecondHandle(terminal->Handle()));
    stream_descriptor stream(io_, handle);
    link_.PointTo(terminal->DeviceName());
    terminal_ = std::move(terminal);
    pump_ = std::make_shared<StreamPump<stream_descriptor>>(
        std::move(stream), [this](auto bytes) { events_.received(bytes); },
        [this] { StationLeft(); });
    LookForStation();
  }

  void Vanish() override {
    link_.Remove();
    timer_.cancel();
    lost_ = false;
    Close();
    SetConnected(false);
  }

  bool CutConnection() override { return false; }
  bool Connected() const override { return connected_; }
  bool Drained() const override {
    return !connected_ || (Backlog() == 0 && terminal_->Unread() == 0);
  }
  std::size_t Backlog() const override { return pump_ ? pump_->Backlog() : 0; }

  void Write(Bytes bytes) override {
    if (connected_) pump_->Write(std::move(bytes));
  }

  std::string Address() const override { return link_.Path().string(); }

 private:
  void LookForStation() {
    const auto station = terminal_->Look();
    // A station may have come, written and gone between two looks.
    if (station.open || station.hasBytes) {
      SetConnected(station.open);
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
    // What nobody read must not greet the next station, so it goes before anyone looks for that
    // one.
    if (terminal_->DropUnread()) {
      LookForStation();
      return;
    }
    // A station that died with the device in exclusive mode leaves it locked for good.
    Close();
    lost_ = true;
    Replace();
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

  void Close() {
    if (pump_) std::exchange(pump_, nullptr)->Close();
    terminal_.reset();
  }

  void SetConnected(bool connected) {
    if (std::exchange(connected_, connected) != connected) events_.connection(connected);
  }

  asio::io_context& io_;
  asio::steady_timer timer_;
  LinkFile link_;
  TransportEvents events_;
  std::unique_ptr<platform::PseudoTerminal> terminal_;
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
