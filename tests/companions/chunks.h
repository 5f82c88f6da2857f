// This thread's message queue and the chunks of data that messages in it tell of.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "companions/peers.h"
#include "platform/message_queue.h"

namespace peers {

using merovane::platform::Message;
using merovane::platform::PostMessageToThread;
using merovane::platform::TakeMessage;

inline std::string_view ChunkOf(const Message& message) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): a message carries an address as a number
  return {reinterpret_cast<const char*>(message.first), static_cast<std::size_t>(message.second)};
}

// Takes chunks until `bytes` bytes are there.
inline std::string TakeChunks(std::uint32_t messageId, std::size_t bytes) {
  std::string data;
  Message message;
  while (data.size() < bytes && TakeMessage(message, kPatienceMs)) {
    EXPECT_EQ(message.id, messageId);
    data.append(ChunkOf(message));
  }
  return data;
}

inline void EmptyQueue() {
  Message message;
  while (TakeMessage(message, 0)) {
  }
}

// One that any thread can be posted.
inline constexpr std::uint32_t kFillerMessage = 1025;

// Leaves no room in the queue, which holds 10,000 messages. Returns how many were missing.
inline int FillQueue() {
  const std::uint32_t self = merovane::platform::CurrentThreadId();
  int posted = 0;
  while (posted < 10000 && PostMessageToThread(self, kFillerMessage, 0, 0)) ++posted;
  return posted;
}

}  // namespace peers
