// A session in C++: catch the handset, see what it is, talk AT to it, keep something in its flash.
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "merovane/merovane.hpp"

namespace {

constexpr std::uint32_t kTestMode = 1;
constexpr std::uint16_t kStationItem = 200;

void Talk(const merovane::Phone& phone) {
  phone.SetImei("490154203237518");
  std::cout << "IMEI " << phone.Imei() << '\n';
  std::cout << "software " << phone.SoftwareVersion() << '\n';
  std::cout << "battery " << phone.BatteryVoltage() << '\n';
  std::cout << phone.SendAt("AT+CGMM");

  const std::vector<std::uint8_t> passed = {2, 0, 2, 6};
  phone.WriteFlash(kStationItem, passed);
  if (phone.ReadFlash(kStationItem, 4) != passed) throw std::runtime_error("flash lost the mark");

  // Every function that takes a port can be called so.
  phone.Call(QV_LedOn_MT, 1u);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: cpp_session PORT\n";
    return 2;
  }
  try {
    const merovane::Phone phone(std::atoi(argv[1]));
    phone.Start(kTestMode);
    Talk(phone);
  } catch (const std::exception& problem) {
    std::cerr << problem.what() << '\n';
    return 1;
  }
  std::cout << "done\n";
}
