/* Imports each kind of name from the import libraries for Microsoft's linker, without any runtime
   library, and ends with 0 when each function is the one that was meant. */
#define MEROVANE_NO_ANNOTATIONS
#include "brimwell/brimwell.h"
#include "merovane/diagnostics.h"
#include "merovane/merovane.h"

enum { kClosedPort = 77 };

int start(void) {
  const char* version = Merovane_Version();
  uint8_t bytes[32];
  if (version[0] < '0' || version[0] > '9') return 1;
  if (QV_ReadMode_MT(kClosedPort, bytes, sizeof bytes) != PC_ERR_PORT_NOT_OPEN) return 2;
  /* Published under decorated names. */
  if (QV_ReadGuid_MT(kClosedPort, bytes) != PC_ERR_PORT_NOT_OPEN) return 3;
  if (QV_WIFI_SetTxStatus(0, 0) != PC_ERR_PORT_NOT_OPEN) return 4;
  if (Spec_SetErrorCode(BRIMWELL_MODULE_PHONE_COMMAND, 2, 3, 0) != 0x01000203u) return 5;
  return 0;
}
