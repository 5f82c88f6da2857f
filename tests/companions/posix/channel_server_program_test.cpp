// Runs the channel-server program as a station engineer does.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

constexpr int kPatienceMs = 20000;

class Program {
 public:
  explicit Program(const std::string& logFile) {
    int input[2];
    int output[2];
    EXPECT_EQ(::pipe(input), 0);
    EXPECT_EQ(::pipe(output), 0);
    process_ = ::fork();
    if (process_ == 0) {
      ::dup2(input[0], STDIN_FILENO);
      ::dup2(output[1], STDOUT_FILENO);
      ::close(input[1]);
      ::execl(CHANNEL_SERVER, "channel-server", "--port", "0", "--log", logFile.c_str(), nullptr);
      ::_exit(127);
    }
    ::close(input[0]);
    ::close(output[1]);
    input_ = input[1];
    output_ = output[0];
  }
  ~Program() {
    ::kill(process_, SIGTERM);
    int status = 0;
    ::waitpid(process_, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    ::close(input_);
    ::close(output_);
  }
  void Type(const std::string& text) {
    EXPECT_EQ(::write(input_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  // What it has shown, once that holds `awaited`.
  const std::string& Shown(const std::string& awaited) {
    while (shown_.find(awaited) == std::string::npos) {
      pollfd polled{output_, POLLIN, 0};
      std::array<char, 512> piece;
      const ssize_t count =
          ::poll(&polled, 1, kPatienceMs) > 0 ? ::read(output_, piece.data(), piece.size()) : 0;
      if (count <= 0) break;
      shown_.append(piece.data(), static_cast<std::size_t>(count));
    }
    EXPECT_NE(shown_.find(awaited), std::string::npos) << awaited << " in\n" << shown_;
    return shown_;
  }

 private:
  pid_t process_;
  int input_;
  int output_;
  std::string shown_;
};

TEST(ChannelServerProgram, ShowsRecordsAndInjectsTraffic) {
  const auto log = std::filesystem::temp_directory_path() /
                   ("channel_server_" + std::to_string(::getpid()) + ".log");
  {
    Program program(log);
    const std::string address = "listening on 127.0.0.1:";
    const std::string& listening = program.Shown("\n");
    ASSERT_TRUE(listening.starts_with(address));

    const int client = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in server{};
    server.sin_family = AF_INET;
    server.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    server.sin_port =
        htons(static_cast<std::uint16_t>(std::stoi(listening.substr(address.size()))));
    ASSERT_EQ(::connect(client, reinterpret_cast<sockaddr*>(&server), sizeof(server)), 0);
    ASSERT_EQ(::write(client, "OK\r\n", 4), 4);
    program.Shown("from client 1 4 bytes");
    program.Shown("4f 4b 0d 0a");
    program.Shown("|OK..|");

    program.Type("no data\n\n7e 00\ntext:AT\\r\n");
    std::string received;
    while (received.size() < 5) {
      std::array<char, 16> piece;
      const ssize_t count = ::read(client, piece.data(), piece.size());
      ASSERT_GT(count, 0);
      received.append(piece.data(), static_cast<std::size_t>(count));
    }
    EXPECT_EQ(received, std::string("\x7E\0AT\r", 5));
    ::close(client);
    program.Shown("client 1 disconnected");
  }
  std::ifstream file(log);
  const std::string recorded{std::istreambuf_iterator<char>(file), {}};
  EXPECT_NE(recorded.find("|OK..|"), std::string::npos);
  EXPECT_NE(recorded.find("|AT.|"), std::string::npos);
  std::filesystem::remove(log);
}

}  // namespace
