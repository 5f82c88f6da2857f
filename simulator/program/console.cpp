#include "program/console.h"

#include <chrono>
#include <iostream>
#include <sstream>
#include <stdexcept>

namespace handset {
namespace {

constexpr const char* kHelp =
    "fault <name>=<probability|next:n>[,<key>:<n>] | fault none\n"
    "assert <0..2>            report an assert\n"
    "restart                  switch off and on\n"
    "vanish <ms>              take the port away for that long\n"
    "unplug | plug            take the port away, bring it back\n"
    "disconnect               cut the station off\n"
    "frame <type> <subtype> [<hex>]   send a frame unasked\n"
    "raw <hex>                send bytes as they are\n"
    "status                   show what the handset shows\n"
    "quit\n";

unsigned Number(std::istringstream& words, unsigned limit) {
  unsigned value = 0;
  if (!(words >> value) || value > limit) {
    throw std::invalid_argument("a number from 0 to " + std::to_string(limit) + " is missing");
  }
  return value;
}

std::string Rest(std::istringstream& words) {
  std::string rest;
  std::getline(words >> std::ws, rest);
  return rest;
}

void Run(Handset& handset, const std::string& verb, std::istringstream& words) {
  if (verb == "fault") {
    handset.SetFault(Rest(words));
  } else if (verb == "assert") {
    handset.Assert(static_cast<std::uint8_t>(Number(words, 2)));
  } else if (verb == "restart") {
    handset.Restart();
  } else if (verb == "vanish") {
    handset.VanishPort(std::chrono::milliseconds(Number(words, 3'600'000)));
  } else if (verb == "unplug") {
    handset.UnplugPort();
  } else if (verb == "plug") {
    handset.PlugPort();
  } else if (verb == "disconnect") {
    handset.Disconnect();
  } else if (verb == "frame") {
    const auto type = static_cast<std::uint8_t>(Number(words, 255));
    const auto subtype = static_cast<std::uint8_t>(Number(words, 255));
    handset.SendFrame(type, subtype, FromHex(Rest(words)));
  } else if (verb == "raw") {
    handset.SendRaw(FromHex(Rest(words)));
  } else if (verb == "status") {
    for (const auto& [name, value] : handset.Status()) std::cout << name << " " << value << "\n";
  } else if (verb == "help") {
    std::cout << kHelp;
  } else {
    throw std::invalid_argument("unknown command, try help");
  }
}

}  // namespace

bool RunConsoleLine(Handset& handset, const std::string& line) {
  std::istringstream words(line);
  std::string verb;
  if (!(words >> verb)) return true;
  if (verb == "quit") return false;
  try {
    Run(handset, verb, words);
    std::cout << "ok " << verb << std::endl;
  } catch (const std::exception& error) {
    std::cout << "error " << verb << ": " << error.what() << std::endl;
  }
  return true;
}

}  // namespace handset
