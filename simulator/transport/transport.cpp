#include "transport/transport.h"

#include <utility>

namespace handset {

std::unique_ptr<Transport> MakeTransport(asio::io_context& io, const PortOptions& options,
                                         TransportEvents events) {
  switch (options.transport) {
    case TransportKind::Tcp:
      return MakeTcp(io, options, std::move(events));
    case TransportKind::Serial:
      return MakeSerial(io, options, std::move(events));
    case TransportKind::Pty:
      break;
  }
  return MakePty(io, options, std::move(events));
}

}  // namespace handset
