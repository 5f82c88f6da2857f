/* What the example station programs share: steps with their results and times, and the few things
   for which C99 has no function. */
#ifndef STATION_H
#define STATION_H

#include <stdint.h>

#include "merovane/merovane.h"

/* Milliseconds on a clock that only goes forward. */
uint32_t station_now_ms(void);
void station_sleep_ms(uint32_t ms);

/* An event for the mode process; wait returns 1 when it is set within the time. */
QV_EVENT station_event_create(void);
int station_event_wait(QV_EVENT event, uint32_t time_limit_ms);
void station_event_close(QV_EVENT event);

/* The name of a result code. */
const char* station_result_name(int32_t result);

/* Names the step that runs next and starts its time. */
void station_step(const char* name);
/* Ends the step: prints result and time. `expected` is the code that this step should give. Returns
   1 when it gave that. */
int station_result(int32_t result, int32_t expected);
/* The same for a check of what was read. */
int station_check(int passed, const char* detail);
/* Text that belongs to the step just ended. */
void station_note(const char* format, ...);

/* Prints how many steps failed and returns the program's exit code. */
int station_summary(const char* title);

/* The port number in the program's first argument; ends the program with a usage text when there is
 * none. */
int32_t station_port(int argc, char** argv, const char* what);

#endif
