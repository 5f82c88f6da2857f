/* Brimwell: the error-code library.
 *
 * Programs report every result here with the operation that gave it; a station
 * asks for the last error of a module. One state per process, safe from any thread. */
#ifndef BRIMWELL_BRIMWELL_H
#define BRIMWELL_BRIMWELL_H

#include <stdint.h>

#include "companions/export.h"

#ifdef BRIMWELL_BUILD
#define BRIMWELL_API COMPANION_EXPORT
#else
#define BRIMWELL_API COMPANION_IMPORT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Which errors a clear removes. */
typedef enum E_ERR_TYPE {
  BRIMWELL_ERRORS_ALL = 0, /* of every module */
  BRIMWELL_ERRORS_LAST = 1 /* the last one reported, whatever its module */
} E_ERR_TYPE;

typedef enum E_MODULE_TYPE {
  BRIMWELL_MODULE_NONE = 0,
  BRIMWELL_MODULE_PHONE_COMMAND = 1, /* a library that commands handsets */
  BRIMWELL_MODULE_LARGEST = 0xFF     /* a station numbers its own modules up to this */
} E_MODULE_TYPE;

/* What was reported last for a module. */
typedef struct BRIMWELL_ERROR {
  uint32_t operation; /* the operation id, 0 when none was recorded */
  int32_t code;       /* the result code, 0 for success */
  int32_t flag;       /* as reported */
  uint32_t sequence;  /* counts the reports of this process, from 1 */
} BRIMWELL_ERROR;

BRIMWELL_API void COMPANION_CALL Spec_ClearErrorCode(E_ERR_TYPE type);

/* Stores the result (successes too). Returns the station-wide code: 0 for
   success, else module * 0x01000000 + operation * 0x100 + (code AND 0xFF). */
BRIMWELL_API uint32_t COMPANION_CALL Spec_SetErrorCode(E_MODULE_TYPE module, uint32_t operation,
                                                       uint32_t code, int flag);

/* Stores the module's last report and returns 1; 0 when there is none or `error` is null. */
BRIMWELL_API int COMPANION_CALL Spec_GetLastError(E_MODULE_TYPE module, BRIMWELL_ERROR* error);

#ifdef __cplusplus
}
#endif

#endif
