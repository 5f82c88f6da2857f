#include <windows.h>

#include "station.h"

uint32_t station_now_ms(void) { return GetTickCount(); }

void station_sleep_ms(uint32_t ms) { Sleep(ms); }

QV_EVENT station_event_create(void) { return CreateEventW(NULL, TRUE, FALSE, NULL); }

int station_event_wait(QV_EVENT event, uint32_t time_limit_ms) {
  return WaitForSingleObject(event, time_limit_ms) == WAIT_OBJECT_0;
}

void station_event_close(QV_EVENT event) { CloseHandle(event); }
