/* A session in C: catch the handset, see what it is, talk AT to it, keep something in its flash. */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "merovane/diagnostics.h"
#include "merovane/merovane.h"

enum { TEST_MODE = 1, STATION_ITEM = 200, BAUD_RATE = 115200 };

/* Says why a call failed. */
static int done(int32_t result) {
  Merovane_Failure failure;
  if (result == PC_ERR_SUCCESS) return 1;
  memset(&failure, 0, sizeof failure);
  failure.struct_bytes = sizeof failure;
  Merovane_LastFailure(0, &failure);
  fprintf(stderr, "%s: %s: %s\n", failure.function, Merovane_ResultName(result), failure.advice);
  return 0;
}

static int talk(void) {
  static const uint8_t passed[4] = {2, 0, 2, 6};
  QV_FIXED_NV_INFO info;
  char version[512] = "", answer[512];
  uint8_t mark[4];
  uint32_t voltage = 0, length = 0;

  memset(&info, 0, sizeof info);
  info.write_imei1 = 1;
  memcpy(info.imei1, "490154203237518", 15);
  if (!done(QV_FastWriteNvInfo(&info)) || !done(QV_FastReadNvInfo(&info))) return 0;
  printf("IMEI %.15s\n", info.imei1);
  if (!done(QV_GetMSVersion(version, sizeof version - 1))) return 0;
  printf("software %s\n", version);
  if (!done(QV_ReadPhoneVolt(&voltage))) return 0;
  printf("battery %u\n", (unsigned)voltage);
  if (!done(QV_SendAtCommand("AT+CGMM", 7, 1, answer, sizeof answer, &length, 2000))) return 0;
  printf("%.*s", (int)length, answer);

  if (!done(QV_WriteFlash(STATION_ITEM, passed, sizeof passed, 4000))) return 0;
  if (!done(QV_ReadFlash(STATION_ITEM, mark, sizeof mark, &length, 4000))) return 0;
  return length == sizeof mark && memcmp(mark, passed, sizeof mark) == 0;
}

int main(int argc, char** argv) {
  int passed;
  if (argc != 2) {
    fprintf(stderr, "usage: c_session PORT\n");
    return 2;
  }
  passed = done(QV_BeginPhoneTest((int32_t)strtol(argv[1], NULL, 10), BAUD_RATE)) &&
           done(QV_SetPhoneStartModeEx(TEST_MODE, 15000)) && talk();
  if (!done(QV_EndPhoneTest())) passed = 0;
  if (passed) printf("done\n");
  return passed ? 0 : 1;
}
