// What the parts of a handset stand on, and what a part is.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "firmware/options.h"
#include "firmware/random.h"
#include "firmware/registry.h"
#include "firmware/storage.h"
#include "wire/wire.h"

namespace handset {

enum class Power {
  Booting,  // repeats its start frame until a start mode is chosen
  Running,
  Asleep,  // deep sleep: the next thing heard wakes it, and is lost
  Off,     // between a restart's two halves
};

using StatusMap = std::map<std::string, std::string>;

// What the parts of a handset stand on. Everything here is called on the handset's own thread.
class Firmware {
 public:
  virtual const HandsetOptions& Options() const = 0;
  ByteOrder Order() const { return Options().byteOrder; }
  virtual Storage& Flash() = 0;
  virtual Random& Noise() = 0;

  // An answer to a command; the frames of one answer leave in the order of the calls.
  virtual void Answer(std::uint8_t type, std::uint8_t subtype, Bytes payload) = 0;
  void Answer(const Frame& request, Bytes payload = {}) {
    Answer(request.type, request.subtype, std::move(payload));
  }
  // Subtype 2 of the answer's type.
  virtual void Refuse(const Frame& request) = 0;
  // Something nobody asked for: lost when no station listens or reads.
  virtual void Report(std::uint8_t type, std::uint8_t subtype, Bytes payload) = 0;

  // Runs the task after this much of the handset's time, unless it restarts before.
  virtual void After(milliseconds delay, std::function<void()> task) = 0;

  virtual Power PowerState() const = 0;
  virtual std::uint8_t Mode() const = 0;
  virtual void EnterMode(std::uint8_t mode) = 0;
  virtual void Sleep() = 0;
  // Off and on again, after what was answered has left: into a mode, or booting without one. The
  // port stays, or vanishes and comes back.
  virtual void Restart(std::optional<std::uint8_t> mode, bool portVanishes) = 0;

  virtual void Note(const std::string& line) = 0;

 protected:
  ~Firmware() = default;
};

// A part of the handset: it answers commands and keeps what they change.
class Part {
 public:
  virtual ~Part() = default;

  // Names its status values ("<name>.<value>") and its factory data.
  virtual std::string Name() const = 0;
  virtual void Register(Registry& registry) = 0;
  // Once in a handset's life, unless it is blank: writes what the factory wrote.
  virtual void WriteFactoryData(Storage&) {}
  // At every boot: what is not in flash is as it is at power-on.
  virtual void PowerOn() {}
  // After the handset has entered a mode.
  virtual void ModeEntered() {}
  virtual void Describe(StatusMap&) const {}
};

}  // namespace handset
