// A channel with its port's device, for tests.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "cassorind/cassorind.h"
#include "companions/peers.h"

namespace peers {

inline constexpr std::uint32_t kPort = 5;

struct Release {
  void operator()(CassorindChannel* channel) const { ReleaseChannel(channel); }
};
using ChannelPointer = std::unique_ptr<CassorindChannel, Release>;

inline ChannelPointer NewChannel() {
  CassorindChannel* channel = nullptr;
  EXPECT_NE(CreateChannel(&channel, 0), 0);
  return ChannelPointer(channel);
}

inline bool OpenAt(CassorindChannel& channel, std::uint32_t port, std::uint32_t baudRate) {
  const CassorindOpenParameters parameters{0, port, baudRate};
  return channel.Open(&parameters) != 0;
}

// Reads until `bytes` bytes are there.
inline std::string ReadAll(CassorindChannel& channel, std::size_t bytes, std::uint32_t piece = 64) {
  std::string data;
  while (data.size() < bytes) {
    std::string buffer(piece, '\0');
    const std::int32_t count = channel.Read(buffer.data(), piece, kPatienceMs, 0);
    if (count <= 0) break;
    data.append(buffer, 0, static_cast<std::size_t>(count));
  }
  return data;
}

inline std::string EveryByteValue(std::size_t bytes) {
  std::string data(bytes, '\0');
  for (std::size_t i = 0; i < bytes; ++i) data[i] = static_cast<char>(i + i / 251);
  return data;
}

// Tells where long data differ instead of showing them.
inline ::testing::AssertionResult SameBytes(const std::string& got, const std::string& expected) {
  if (got == expected) return ::testing::AssertionSuccess();
  const auto differs = std::mismatch(got.begin(), got.end(), expected.begin(), expected.end());
  return ::testing::AssertionFailure() << got.size() << " bytes for " << expected.size()
                                       << ", differ at " << differs.first - got.begin();
}

// Runs each test over every kind of device.
class AnyDevice : public ::testing::TestWithParam<std::string> {
 protected:
  void Open() {
    ASSERT_TRUE(OpenAt(*channel, kPort, 115200));
    peer->Accept();
  }

  const std::unique_ptr<Peer> peer = Make(GetParam());
  const PortDevice device{kPort, peer->DeviceName()};
  const ChannelPointer channel = NewChannel();
};

}  // namespace peers
