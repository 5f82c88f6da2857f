// Reads and writes one non-blocking Asio stream. Writing goes to the system at once, and queues
// only what it does not take.
#pragma once

#include <array>
#include <asio/buffer.hpp>
#include <asio/error.hpp>
#include <deque>
#include <functional>
#include <memory>
#include <span>
#include <utility>

#include "wire/wire.h"

namespace handset {

template <typename Stream>
class StreamPump : public std::enable_shared_from_this<StreamPump<Stream>> {
 public:
  using Received = std::function<void(std::span<const std::uint8_t>)>;
  using Ended = std::function<void()>;

  StreamPump(Stream stream, Received received, Ended ended)
      : stream_(std::move(stream)), received_(std::move(received)), ended_(std::move(ended)) {
    stream_.non_blocking(true);
  }

  // Reads until the stream ends, which may be tried again where the stream allows.
  void Read() {
    stream_.async_read_some(
        asio::buffer(input_),
        [self = this->shared_from_this()](const asio::error_code& error, std::size_t count) {
          if (self->closed_) return;
          if (error) {
            self->ended_();
            return;
          }
          self->received_(std::span(self->input_).first(count));
          if (!self->closed_) self->Read();
        });
  }

  void Write(Bytes bytes) {
    backlog_ += bytes.size();
    queue_.push_back(std::move(bytes));
    if (!waiting_) WriteQueue();
  }

  void DropBacklog() {
    queue_.clear();
    backlog_ = written_ = 0;
  }

  // Nothing is called back afterwards.
  void Close() {
    closed_ = true;
    DropBacklog();
    asio::error_code ignored;
    stream_.close(ignored);
  }

  std::size_t Backlog() const { return backlog_; }
  Stream& Native() { return stream_; }

 private:
  void WriteQueue() {
    while (!queue_.empty()) {
      asio::error_code error;
      auto rest = asio::buffer(queue_.front()) + written_;
      std::size_t count = stream_.write_some(rest, error);
      if (error == asio::error::would_block || error == asio::error::try_again) {
        WaitForRoom();
        return;
      }
      if (error) {  // The read side reports the end.
        DropBacklog();
        return;
      }
      written_ += count;
      backlog_ -= count;
      if (written_ == queue_.front().size()) {
        queue_.pop_front();
        written_ = 0;
      }
    }
  }

  void WaitForRoom() {
    waiting_ = true;
    stream_.async_wait(Stream::wait_write,
                       [self = this->shared_from_this()](const asio::error_code&) {
                         self->waiting_ = false;
                         if (!self->closed_) self->WriteQueue();
                       });
  }

  Stream stream_;
  Received received_;
  Ended ended_;
  std::array<std::uint8_t, 16384> input_{};
  std::deque<Bytes> queue_;
  std::size_t written_ = 0;  // of the front of the queue
  std::size_t backlog_ = 0;
  bool waiting_ = false;
  bool closed_ = false;
};

}  // namespace handset
