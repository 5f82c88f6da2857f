// How a simulated handset is to be.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "transport/transport.h"
#include "wire/wire.h"

namespace handset {

using std::chrono::milliseconds;

// Where a handset keeps its serial numbers: in production flash item 0, or in the
// production-information block.
enum class SerialLayout { Flash, Production };

inline constexpr std::size_t kSerialNumberBytes = 24;

struct HandsetOptions : PortOptions {
  ByteOrder byteOrder = ByteOrder::Big;

  // A booting handset repeats its start frame until a station picks a start mode. With a mode
  // given here it boots straight into that mode and sends none.
  milliseconds startFrameInterval{100};
  std::optional<std::uint8_t> startMode;

  // What the port does at a restart or a mode change: stays, or vanishes and comes back.
  bool portVanishes = false;
  // The same once a start mode was chosen: a handset on USB comes back as another device.
  bool portVanishesAtStart = false;
  milliseconds portAbsence{500};

  // The handset's own times: added to each answer, between trace frames, and a factor on all.
  milliseconds latency{0};
  milliseconds traceInterval{20};
  double timeScale = 1.0;

  // What the handset keeps in flash outlives the program when a file is named. A blank handset
  // starts with nothing written, whatever the file held.
  std::string stateFile;
  bool blank = false;
  // What a new handset's factory wrote: one to four IMEIs of 15 digits, one or two serial numbers
  // of at most 24 characters.
  std::vector<std::string> imeis{"490154203237518", "490154203237526"};
  std::vector<std::string> serialNumbers{"SIM0000000001", "SIM0000000002"};
  SerialLayout serialLayout = SerialLayout::Flash;

  // An unknown command is refused (subtype 2 of its type), or ignored.
  bool refuseUnknown = true;

  // The same seed repeats the same faults and the same noise.
  std::uint64_t seed = 1;
  // As `Handset::SetFault` takes them.
  std::vector<std::string> faults;

  // Received frames kept for inspection; older ones are forgotten.
  std::size_t journalCapacity = 10'000;
  // Called on the handset's thread with one line per frame and event.
  std::function<void(const std::string&)> transcript;
};

}  // namespace handset
