#include "station.h"

#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "merovane/diagnostics.h"

static const char* current_step = "";
static uint32_t step_started;
static int steps;
static int failures;

const char* station_result_name(int32_t result) {
  switch (result) {
    case PC_ERR_SUCCESS:
      return "ok";
    case PC_ERR_PORT_IS_NOT_OPEN:
      return "port is not open";
    case PC_ERR_CANNOT_OPEN_PORT:
      return "cannot open port";
    case PC_ERR_WRITE_DATA_FAIL:
      return "write failed";
    case PC_ERR_INVALID_PARAM:
      return "invalid argument";
    case PC_ERR_IMPORT_BUFFER_SIZE_IS_TOO_SMALL:
      return "buffer too small";
    case PC_ERR_CAN_NOT_REC_DATA:
      return "nothing received";
    case PC_ERR_CAN_NOT_REC_TWO_FLAG:
      return "no whole frame";
    case PC_ERR_REC_CMD_TYPE_OR_SUB_TYPE_ERR:
      return "no answer";
    case PC_ERR_REC_DATA_LENGTH_ERR:
      return "wrong data length";
    case PC_ERR_PARSE_REC_DATA_ERR:
      return "implausible answer";
    case PC_ERR_ENTER_MODE_FAIL:
      return "mode not entered";
    case PC_ERR_NV_PRJ_FILE_IS_NOT_OPEN:
      return "no NV project";
    case PC_ERR_CAN_NOT_RECV_USEFUL_DATA:
      return "no useful data";
    case PC_ERR_INVALID_RSSI_VALUE:
      return "RSSI is zero";
    case PC_ERR_VERIFY_CRC:
      return "checksum mismatch";
    case PC_ERR_BLUETOOTH_OPER_FAIL:
      return "Bluetooth failed";
    case PC_ERR_SEND_GPS_CMD_FAIL:
      return "GPS failed";
    case PC_ERR_DSP_DEBUG_OPERATION_FAIL:
      return "DSP failed";
    case PC_ERR_WIFI_OPER_FAIL:
      return "WiFi failed";
    case QV_REFUSED:
      return "refused by the handset";
    default:
      return "failed";
  }
}

void station_step(const char* name) {
  current_step = name;
  step_started = station_now_ms();
}

static void print_outcome(int passed, const char* detail) {
  ++steps;
  if (!passed) ++failures;
  printf("  %-4s %-46s %-26s %6u ms\n", passed ? "pass" : "FAIL", current_step, detail,
         (unsigned)(station_now_ms() - step_started));
  fflush(stdout);
}

/* What the library knows of this thread's last call that failed. */
static void note_failure(void) {
  Merovane_Failure failure;
  memset(&failure, 0, sizeof failure);
  failure.struct_bytes = sizeof failure;
  if (Merovane_LastFailure(0, &failure)) station_note("%s: %s", failure.function, failure.advice);
}

int station_result(int32_t result, int32_t expected) {
  char detail[64];
  snprintf(detail, sizeof detail, "%d (%s)", (int)result, station_result_name(result));
  print_outcome(result == expected, detail);
  if (result != expected && result != PC_ERR_SUCCESS) note_failure();
  return result == expected;
}

int station_check(int passed, const char* detail) {
  print_outcome(passed, detail);
  return passed;
}

void station_note(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  fputs("         ", stdout);
  vprintf(format, arguments);
  fputc('\n', stdout);
  va_end(arguments);
}

int station_summary(const char* title) {
  printf("%s: %d steps, %d failed\n", title, steps, failures);
  return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

int32_t station_port(int argc, char** argv, const char* what) {
  const long port = argc > 1 ? strtol(argv[1], NULL, 10) : 0;
  if (port < 1 || port > INT32_MAX) {
    fprintf(stderr,
            "usage: %s PORT\n%s\nPORT is the number of the handset's serial port; "
            "CASSORIND_COM<PORT> may name "
            "its device.\n",
            argc > 0 ? argv[0] : "station", what);
    exit(2);
  }
  setvbuf(stdout, NULL, _IOLBF, BUFSIZ);
  return (int32_t)port;
}
