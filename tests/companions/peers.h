// The far ends of a channel.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace peers {

// Far longer than anything takes: a test that waits so long has failed.
inline constexpr std::uint32_t kPatienceMs = 20000;

class Peer {
 public:
  virtual ~Peer() = default;
  // As the environment names it to the channel.
  virtual std::string DeviceName() const = 0;
  // After each open of the channel; a former connection is dropped.
  virtual void Accept() = 0;
  virtual void Send(std::string_view data) = 0;
  // Returns when the system has what was sent on the channel's side.
  virtual void AwaitDelivery() = 0;
  // Takes exactly `bytes` bytes, fewer only when the channel closed.
  virtual std::string Receive(std::size_t bytes) = 0;
  virtual void Vanish() = 0;
};

// The kinds of device that channels have on this system.
std::vector<std::string> Kinds();
std::unique_ptr<Peer> Make(const std::string& kind);

// Names the device of a port for the lifetime of this object.
class PortDevice {
 public:
  PortDevice(int port, const std::string& device)
      : variable_("CASSORIND_COM" + std::to_string(port)) {
    SetEnvironment(variable_, device);
  }
  PortDevice(const PortDevice&) = delete;
  PortDevice& operator=(const PortDevice&) = delete;
  ~PortDevice() { SetEnvironment(variable_, ""); }

 private:
  static void SetEnvironment(const std::string& variable, const std::string& value);

  std::string variable_;
};

}  // namespace peers
