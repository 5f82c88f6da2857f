// merovane-handset: a simulated handset until "quit" or a signal.
#include <CLI/CLI.hpp>
#include <asio/io_context.hpp>
#include <asio/signal_set.hpp>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <thread>

#include "handset/handset.h"
#include "program/console.h"

namespace {

using handset::Handset;
using handset::HandsetOptions;
using handset::TransportKind;

void TakeTcpAddress(const std::string& text, HandsetOptions& options) {
  const std::size_t colon = text.rfind(':');
  const std::string port = colon == std::string::npos ? text : text.substr(colon + 1);
  std::string host = colon == std::string::npos ? "" : text.substr(0, colon);
  int number = -1;
  if (!CLI::detail::lexical_cast(port, number) || number < 0 || number > 65535) {
    throw CLI::ValidationError("--tcp", "takes [host:]port");
  }
  if (host.size() > 2 && host.front() == '[' && host.back() == ']') {
    host = host.substr(1, host.size() - 2);
  }
  options.transport = TransportKind::Tcp;
  options.tcpPort = static_cast<std::uint16_t>(number);
  if (!host.empty()) options.address = host;
}

constexpr int kTrouble = 1;
constexpr int kBadOptions = 2;

int Complain(const std::exception& error, int exitCode) {
  std::fprintf(stderr, "merovane-handset: %s\n", error.what());
  return exitCode;
}

struct CommandLine {
  HandsetOptions options;
  bool verbose = false;
};

void Declare(CLI::App& app, CommandLine& line) {
  HandsetOptions& o = line.options;
  const auto milliseconds = [&app](const char* name, std::chrono::milliseconds& value,
                                   const char* help) {
    app.add_option_function<unsigned>(
           name, [&value](unsigned ms) { value = std::chrono::milliseconds(ms); }, help)
        ->type_name("MS");
  };
  auto* tcp = app.add_option_function<std::string>(
      "--tcp", [&o](const std::string& text) { TakeTcpAddress(text, o); },
      "Serve a TCP port, [host:]port, instead of a pseudo-terminal; loopback unless a host is "
      "given, 0 takes a free port");
  auto* serial = app.add_option_function<std::string>(
      "--serial",
      [&o](const std::string& device) {
        o.transport = TransportKind::Serial;
        o.serialDevice = device;
      },
      "Serve a serial device of this machine");
  tcp->excludes(serial);
  app.add_option("--link", o.link, "Name of the pseudo-terminal: a symbolic link made here")
      ->excludes(tcp)
      ->excludes(serial);
  app.add_option("--baud", o.baudRate, "Baud rate of the serial device")->needs(serial);
  app.add_flag_callback(
      "--little-endian", [&o] { o.byteOrder = handset::ByteOrder::Little; },
      "Fields least significant byte first");
  app.add_option_function<unsigned>(
         "--mode", [&o](unsigned mode) { o.startMode = static_cast<std::uint8_t>(mode); },
         "Boot straight into this mode instead of waiting for a start mode")
      ->check(CLI::Range(0, 255));
  milliseconds("--start-interval-ms", o.startFrameInterval, "Time between start frames");
  app.add_option_function<unsigned>(
         "--vanish-ms",
         [&o](unsigned ms) {
           o.portVanishes = true;
           o.portAbsence = std::chrono::milliseconds(ms);
         },
         "At a restart or mode change the port vanishes for that long")
      ->type_name("MS");
  app.add_flag("--vanish-at-start", o.portVanishesAtStart,
               "The port also vanishes, and comes back, once a start mode was chosen");
  milliseconds("--latency-ms", o.latency, "Time before each answer");
  milliseconds("--trace-interval-ms", o.traceInterval, "Time between trace frames");
  app.add_option("--time-scale", o.timeScale, "Factor on all the handset's own times")
      ->check(CLI::Range(0.0, 1000.0));
  app.add_option("--state", o.stateFile, "File that keeps the handset's flash memory");
  app.add_flag("--blank", o.blank, "Start with nothing written in flash");
  app.add_option_function<std::string>(
         "--serial-layout",
         [&o](const std::string& name) {
           o.serialLayout = name == "production" ? handset::SerialLayout::Production
                                                 : handset::SerialLayout::Flash;
         },
         "Where a new handset has its serial numbers")
      ->check(CLI::IsMember({"flash", "production"}));
  app.add_option("--imei", o.imeis, "IMEI of a new handset; give it again for more, up to four")
      ->take_all()
      ->expected(1, 4);
  app.add_option("--serial-number", o.serialNumbers,
                 "Serial number of a new handset; give it again for the second one")
      ->take_all()
      ->expected(1, 2);
  app.add_flag_callback(
      "--ignore-unknown", [&o] { o.refuseUnknown = false; },
      "Ignore unknown commands instead of refusing them");
  app.add_option("--seed", o.seed, "Repeats faults and noise");
  app.add_option("--fault", o.faults, "Misbehave: drop=0.1, split=next:2,pieces:4, ...")
      ->take_all();
  app.add_flag("--verbose", line.verbose, "Show every frame on standard error");
}

// Serves until "quit", or a signal when there is no console.
void Serve(const HandsetOptions& options) {
  Handset phone(options);
  asio::io_context signals;
  asio::signal_set stop(signals, SIGINT, SIGTERM);
  stop.async_wait([&](const asio::error_code& error, int) {
    if (error) return;
    phone.Stop();
    // The main thread may be waiting for a line that never comes.
    std::_Exit(EXIT_SUCCESS);
  });
  phone.Start();
  std::thread watcher([&] { signals.run(); });
  std::cout << "ready " << phone.Address() << std::endl;
  std::string command;
  bool quit = false;
  while (!quit && std::getline(std::cin, command)) {
    quit = !handset::RunConsoleLine(phone, command);
  }
  if (quit) signals.stop();
  watcher.join();
}

int Run(int argc, char** argv) {
  CLI::App app("A simulated handset on a pseudo-terminal, a TCP port or a serial device");
  app.set_version_flag("--version", MEROVANE_VERSION);
  CommandLine line;
  Declare(app, line);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? EXIT_SUCCESS : kBadOptions;
  }
  if (line.verbose) {
    line.options.transcript = [](const std::string& text) { std::cerr << text + "\n"; };
  }
  Serve(line.options);
  return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::invalid_argument& error) {
    return Complain(error, kBadOptions);
  } catch (const std::exception& error) {
    return Complain(error, kTrouble);
  }
}
