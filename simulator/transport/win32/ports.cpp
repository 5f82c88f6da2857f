// Windows has no pseudo-terminals, and a COM port there is a real handset's: the simulated one
// is reached over TCP.
#include <stdexcept>

#include "transport/transport.h"

namespace handset {

std::unique_ptr<Transport> MakePty(asio::io_context&, const PortOptions&, TransportEvents) {
  throw std::runtime_error("there are no pseudo-terminals on Windows: use a TCP port");
}

std::unique_ptr<Transport> MakeSerial(asio::io_context&, const PortOptions&, TransportEvents) {
  throw std::runtime_error("the simulated handset has no serial port on Windows: use a TCP port");
}

}  // namespace handset
