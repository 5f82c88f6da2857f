// channel-server: shows what stations forward from their handsets and sends
// them what is typed.
#include <CLI/CLI.hpp>
#include <array>
#include <asio/post.hpp>
#include <asio/signal_set.hpp>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <fstream>
#include <functional>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

#include "channel_server.h"
#include "hex_dump.h"
#include "typed_data.h"

namespace {

std::string TimeOfDay() {
  using namespace std::chrono;
  const auto now = system_clock::now();
  const std::time_t seconds = system_clock::to_time_t(now);
  const auto ms = duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000;
  // Only the thread that runs the server asks for the time.
  const std::tm local = *std::localtime(&seconds);
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%02d:%02d:%02d.%03d", local.tm_hour, local.tm_min,
                local.tm_sec, static_cast<int>(ms));
  return text.data();
}

// Shows on standard output and, when there is one, in the log.
class Display {
 public:
  void LogTo(const std::string& file) {
    log_.open(file, std::ios::app);
    if (!log_) throw std::runtime_error("cannot write " + file);
  }
  void Line(const std::string& text) { Show(TimeOfDay() + "  " + text + "\n"); }
  void Data(const std::string& heading, std::span<const std::byte> data) {
    Show(TimeOfDay() + "  " + heading + " " + std::to_string(data.size()) + " bytes\n" +
         channel_server::HexDump(data));
  }

 private:
  void Show(const std::string& text) {
    std::cout << text << std::flush;
    if (log_.is_open()) log_ << text << std::flush;
  }

  std::ofstream log_;
};

// Sends what is typed until the input ends.
void ReadTypedLines(asio::io_context& context, channel_server::ChannelServer& server,
                    Display& display) {
  for (std::string line; std::getline(std::cin, line);) {
    auto data = channel_server::ParseTypedData(line);
    if (!data) {
      std::cerr << "neither hex bytes nor text: " << line << std::endl;
      continue;
    }
    if (data->empty()) continue;
    asio::post(context, [&display, shown = *data] { display.Data("to all clients", shown); });
    server.Inject(std::move(*data));
  }
}

[[noreturn]] void Run(std::uint16_t port, const std::string& logFile) {
  Display display;
  if (!logFile.empty()) display.LogTo(logFile);
  const auto client = [](int number) { return "client " + std::to_string(number); };
  asio::io_context context;
  channel_server::ChannelServer server(
      context, port,
      {.connected = [&](int number) { display.Line(client(number) + " connected"); },
       .disconnected = [&](int number) { display.Line(client(number) + " disconnected"); },
       .received =
           [&](int number, std::span<const std::byte> data) {
             display.Data("from " + client(number), data);
           }});
  std::cout << "listening on 127.0.0.1:" << server.Port() << std::endl;

  asio::signal_set stopSignals(context, SIGINT, SIGTERM);
  stopSignals.async_wait([&](const std::error_code&, int) { context.stop(); });
  // Never joined: it may sit in a read that only a key ends.
  std::thread(ReadTypedLines, std::ref(context), std::ref(server), std::ref(display)).detach();
  context.run();
  // Leaves that thread what it uses.
  std::_Exit(0);
}

}  // namespace

int main(int argc, char** argv) try {
  CLI::App app{
      "Shows what stations forward from their handsets, and sends them what is typed:\n"
      "hex bytes (7e 00 7E00), or text:… with the escapes \\r \\n \\t \\0 \\\\ \\xHH."};
  std::uint16_t port = 36667;
  std::string logFile;
  app.add_option("--port", port, "TCP port on 127.0.0.1; 0 takes a free one")
      ->capture_default_str();
  app.add_option("--log", logFile, "Append what is shown to this file");
  CLI11_PARSE(app, argc, argv);
  Run(port, logFile);
} catch (const std::exception& error) {
  std::fprintf(stderr, "channel-server: %s\n", error.what());
  return 1;
}
