/* Calling convention, linkage and the records that exported functions take.
 *
 * Records stand in the caller's memory, in this machine's byte order, without padding other than shown. */
#ifndef MEROVANE_TYPES_H
#define MEROVANE_TYPES_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#define MEROVANE_CALL __stdcall
#if defined(MEROVANE_BUILD)
/* The module definition exports the functions, under their exact names. */
#define MEROVANE_API
#else
#define MEROVANE_API __declspec(dllimport)
#endif
#else
#define MEROVANE_CALL
#define MEROVANE_API __attribute__((visibility("default")))
#endif

/** An event of the caller's: a Win32 event handle on Windows, elsewhere an eventfd descriptor. 0 and,
 * elsewhere than on Windows, negative values count as null. */
#if defined(_WIN32)
typedef void *QV_EVENT;
#else
typedef intptr_t QV_EVENT;
#endif

/** The eight numbers of the serving cell line "+CCED:", in its order; those that it lacks are 0. */
typedef struct QV_CELL_INFO {
  int32_t values[8];
} QV_CELL_INFO;

#endif
