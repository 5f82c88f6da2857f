// A serial line to a station elsewhere. Whether somebody listens at its other end cannot be
// known, so it counts as connected while the device is there.
#include <asio/posix/stream_descriptor.hpp>
#include <asio/serial_port.hpp>
#include <asio/steady_timer.hpp>
#include <stdexcept>
#include <utility>

#include "platform/device_handle.h"
#include "transport/stream_pump.h"
#include "transport/transport.h"

namespace handset {
namespace {

using asio::posix::stream_descriptor;
namespace platform = merovane::platform;

constexpr std::chrono::milliseconds kReopenInterval{500};

class SerialPort final : public Transport {
 public:
  SerialPort(asio::io_context& io, const PortOptions& options, TransportEvents events)
      : io_(io),
        reopen_(io),
        device_(options.serialDevice),
        baudRate_(options.baudRate),
        events_(std::move(events)) {}

  ~SerialPort() override {
    if (pump_) pump_->Close();
  }

  void Appear() override {
    try {
      asio::serial_port port(io_, device_);
      port.set_option(asio::serial_port::baud_rate(baudRate_));
      port.set_option(asio::serial_port::character_size(8));
      port.set_option(asio::serial_port::parity(asio::serial_port::parity::none));
      port.set_option(asio::serial_port::stop_bits(asio::serial_port::stop_bits::one));
      port.set_option(asio::serial_port::flow_control(asio::serial_port::flow_control::none));
      pump_ = std::make_shared<StreamPump<stream_descriptor>>(
          stream_descriptor(io_, static_cast<int>(platform::SecondHandle(port.native_handle()))),
          [this](auto bytes) { events_.received(bytes); }, [this] { DeviceLost(); });
    } catch (const std::system_error& error) {
      throw std::runtime_error("cannot open " + device_ + ": " + error.what());
    }
    events_.connection(true);
    pump_->Read();
  }

  void Vanish() override {
    reopen_.cancel();
    if (!pump_) return;
    std::exchange(pump_, nullptr)->Close();
    events_.connection(false);
  }

  bool CutConnection() override { return false; }
  bool Connected() const override { return pump_ != nullptr; }
  bool Drained() const override {
    return !pump_ ||
           (Backlog() == 0 && platform::UnsentBytes(pump_->Native().native_handle()) == 0);
  }
  std::size_t Backlog() const override { return pump_ ? pump_->Backlog() : 0; }

  void Write(Bytes bytes) override {
    if (pump_) pump_->Write(std::move(bytes));
  }

  std::string Address() const override { return device_; }

 private:
  // An adapter that was pulled out may be plugged in again.
  void DeviceLost() {
    Vanish();
    reopen_.expires_after(kReopenInterval);
    reopen_.async_wait([this](const asio::error_code& error) {
      if (error) return;
      try {
        Appear();
      } catch (const std::runtime_error&) {
        DeviceLost();
      }
    });
  }

  asio::io_context& io_;
  asio::steady_timer reopen_;
  std::string device_;
  unsigned baudRate_;
  TransportEvents events_;
  std::shared_ptr<StreamPump<stream_descriptor>> pump_;
};

}  // namespace

std::unique_ptr<Transport> MakeSerial(asio::io_context& io, const PortOptions& options,
                                      TransportEvents events) {
  return std::make_unique<SerialPort>(io, options, std::move(events));
}

}  // namespace handset
