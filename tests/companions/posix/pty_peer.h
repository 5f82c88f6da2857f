// The master side of a pty.
#pragma once

// The kernel's own header for terminals: the C library's knows only a list of rates.
#include <asm/termbits.h>

#include <string>

#include "companions/peers.h"

namespace peers {

class PtyPeer : public Peer {
 public:
  PtyPeer();
  PtyPeer(const PtyPeer&) = delete;
  PtyPeer& operator=(const PtyPeer&) = delete;
  ~PtyPeer() override { Vanish(); }

  std::string DeviceName() const override { return name_; }
  void Accept() override {}
  void Send(std::string_view data) override;
  void AwaitDelivery() override {}
  std::string Receive(std::size_t bytes) override;
  void Vanish() override;
  termios2 Settings() const;

 private:
  int master_;
  std::string name_;
};

}  // namespace peers
