// Cassorind: the serial channel library.
//
// A channel is a byte stream to one handset. CreateChannel makes one, its
// operations open, drive and close it, ReleaseChannel frees it.
//
// Port n is the device named by the environment variable CASSORIND_COM<n>: a
// tty path, "socket://host:port" for a TCP stream or, on Windows, a name like
// "COM12". Without the variable, or with an empty one, it is /dev/ttyS<n-1> (Windows: \\.\COM<n>).
#ifndef CASSORIND_CASSORIND_H
#define CASSORIND_CASSORIND_H

#include <cstdint>

#include "companions/export.h"

#ifdef CASSORIND_BUILD
#define CASSORIND_API COMPANION_EXPORT
#else
#define CASSORIND_API COMPANION_IMPORT
#endif

struct CassorindOpenParameters {
  std::uint32_t kind;      // 0: a serial port, 8 data bits, no parity, 1 stop bit, raw
  std::uint32_t port;      // 1 and up
  std::uint32_t baudRate;  // any standard rate; not used by a TCP stream
};

// The operations stand in the order in which callers built against other
// versions of this library expect them; none may be added before the last.
class CassorindChannel {
 public:
  // Enabled (non-zero): received data is no longer kept for Read but posted to thread
  // `threadId` as messages `messageId` whose first parameter is a chunk's address and
  // whose second is its length in bytes. Zero ends that. Takes effect at once on an open
  // channel, else with the next open. Returns non-zero on success. While the thread's
  // queue is full, or the thread has none yet, the channel waits and nothing is lost.
  // A thread that has ended is dropped: what was not posted by then is kept for Read.
  //
  // The channel owns every chunk: the receiver reads it and never frees it. A
  // chunk stays as it is for 5 seconds, less when 512 KiB more come meanwhile, and its
  // memory can be read until the channel is released.
  virtual std::int32_t SetReceiver(std::uint32_t messageId, std::int32_t enabled,
                                   std::uint32_t threadId) = 0;
  // Non-zero on success. Fails when the channel is open already, when another one
  // has the device, and for rates above 4,000,000 baud.
  virtual std::int32_t Open(const CassorindOpenParameters* parameters) = 0;
  // Non-zero when the channel was open. Ends posting before it returns; a Read
  // or Write that runs on another thread returns at once. Chunks stay readable.
  virtual std::int32_t Close() = 0;
  // Purges input that was received and not yet read, in the system and here. Non-zero on success.
  virtual std::int32_t Clear() = 0;
  // Waits until at least one byte is there, then takes what is there, at most
  // `maxBytes`. Returns the number of bytes; 0 when `timeLimitMs` passed
  // without any, and -1 at once when the channel is closed or its device is gone.
  virtual std::int32_t Read(void* buffer, std::uint32_t maxBytes, std::uint32_t timeLimitMs,
                            std::uint32_t reserved) = 0;
  // Returns the number of bytes that the system took: `length`, or fewer when
  // the device is gone or takes nothing for 2 seconds. May run while another
  // thread reads; writes of several threads do not mix.
  virtual std::int32_t Write(const void* data, std::uint32_t length, std::uint32_t reserved) = 0;

 protected:
  ~CassorindChannel() = default;
};

// Why an Open failed.
enum CassorindReason : std::int32_t {
  CASSORIND_NO_REASON = 0,
  CASSORIND_NO_DEVICE = 1,           // the system has no device of that name
  CASSORIND_DEVICE_TAKEN = 2,        // another channel or program has it
  CASSORIND_DEVICE_DENIED = 3,       // this user may not open it
  CASSORIND_NO_SERIAL_DEVICE = 4,    // the name stands for a plain file or a folder
  CASSORIND_PIPE = 5,                // it stands for a FIFO
  CASSORIND_RATE_REFUSED = 6,        // the device, or this library, does not take the rate
  CASSORIND_ADDRESS_MALFORMED = 7,   // "socket://" is not followed by host:port
  CASSORIND_HOST_UNKNOWN = 8,        // the host's name does not resolve
  CASSORIND_CONNECTION_REFUSED = 9,  // nothing listens there, or it cannot be reached in time
};

struct CassorindFailure {
  std::int32_t reason;       // a CassorindReason
  std::int32_t systemError;  // errno, or GetLastError's; 0 when the system said nothing
  char device[256];          // what the port stands for, as it was looked up; ends with a zero
};

extern "C" {
// Why the last Open on the calling thread failed; 0 when none did. Callers look it up by its name:
// other versions of this library lack it.
CASSORIND_API std::int32_t COMPANION_CALL CassorindLastFailure(CassorindFailure* failure);
// Stores a new, closed channel. Non-zero on success, 0 for a null pointer or a kind other than 0.
CASSORIND_API std::int32_t COMPANION_CALL CreateChannel(CassorindChannel** channel,
                                                        std::uint32_t kind);
// Closes the channel if need be and frees it; null is ignored.
CASSORIND_API void COMPANION_CALL ReleaseChannel(CassorindChannel* channel);
}

#endif
