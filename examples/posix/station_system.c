// NOLINTNEXTLINE(bugprone-reserved-identifier): the system's own switch
#define _POSIX_C_SOURCE 200809L

#include <poll.h>
#include <sys/eventfd.h>
#include <time.h>
#include <unistd.h>

#include "station.h"

uint32_t station_now_ms(void) {
  struct timespec now;
  clock_gettime(CLOCK_MONOTONIC, &now);
  return (uint32_t)((uint64_t)now.tv_sec * 1000u + (uint64_t)now.tv_nsec / 1000000u);
}

void station_sleep_ms(uint32_t ms) {
  struct timespec time = {(time_t)(ms / 1000u), (long)(ms % 1000u) * 1000000L};
  nanosleep(&time, NULL);
}

QV_EVENT station_event_create(void) { return eventfd(0, EFD_CLOEXEC); }

int station_event_wait(QV_EVENT event, uint32_t time_limit_ms) {
  struct pollfd waited = {(int)event, POLLIN, 0};
  return poll(&waited, 1, (int)time_limit_ms) == 1;
}

void station_event_close(QV_EVENT event) { close((int)event); }
