// A station program for one settings file: prints what the library makes of it.
#include <chrono>
#include <cstdio>

#include "merovane/merovane.h"

int main() {
  uint32_t bigEndian = 7;
  QV_GetProperty(4, 0, &bigEndian);
  const int32_t opened = QV_BeginPhoneTest(7, 115200);
  uint8_t data[4] = {};
  const int32_t read = QV_ReadMode(data, 4);
  const auto start = std::chrono::steady_clock::now();
  const int32_t silent = QV_RestartPhone(50);
  const std::chrono::duration<double, std::milli> waited = std::chrono::steady_clock::now() - start;
  std::printf("big %u open %d mode %d silent %d waited %d\n", bigEndian, opened, read, silent,
              static_cast<int>(waited.count()));
  return QV_EndPhoneTest();
}
