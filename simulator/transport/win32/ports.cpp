#include <stdexcept>

#include "transport/transport.h"

// Windows has no pseudo-terminals, and a handset behind a COM port is what stations there test:
// the simulated one is reached over TCP.
namespace handset {

std::unique_ptr<Transport> MakePty(asio::io_context&, const HandsetOptions&, TransportEvents) {
  throw std::runtime_error("there are no pseudo-terminals on Windows: use a TCP port");
}

std::unique_ptr<Transport> MakeSerial(asio::io_context&, const HandsetOptions&, TransportEvents) {
  throw std::runtime_error("the simulated handset has no serial port on Windows: use a TCP port");
}

}  // namespace handset
