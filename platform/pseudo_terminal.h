// Serial devices that this program makes and serves, and another program opens.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace merovane::platform {

// Interprets nothing of what passes. Destroying it takes the device away.
class PseudoTerminal {
 public:
  virtual ~PseudoTerminal() = default;

  // What the other program opens.
  virtual const std::string& DeviceName() const = 0;
  // This program's end, to read and write by. It stays this object's.
  virtual std::intptr_t Handle() const = 0;

  struct OtherEnd {
    bool open;      // a program has the device open
    bool hasBytes;  // one that has it open, or had it, wrote what nobody has read here
  };
  virtual OtherEnd Look() const = 0;

  // These open the device for a moment. The bytes that were written here and not read there; 0 when
  // it cannot be opened.
  virtual std::size_t Unread() const = 0;
  // Drops them. False when the device cannot be opened.
  virtual bool DropUnread() = 0;
};

// Null when the system gives none, with the reason in words.
std::unique_ptr<PseudoTerminal> MakePseudoTerminal(std::string& whyNot);

}  // namespace merovane::platform
