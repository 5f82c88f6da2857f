/* Diagnostics: why a call failed, what results and operations are called, what the settings
 * are, which calls were made.
 *
 * These functions stand beside those of merovane.h: none of them sends anything, reports to the
 * error-code library or changes what a command does. Every one may be called from any thread, also
 * while another one works on the same port. Texts are UTF-8; those that are returned stay valid for
 * as long as the library is loaded. */
#ifndef MEROVANE_DIAGNOSTICS_H
#define MEROVANE_DIAGNOSTICS_H

#include "result_codes.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Names and texts ------------------------------------------------------------------ */

/** The library's version, as "1.2.3". Never null. */
MEROVANE_API const char* MEROVANE_CALL Merovane_Version(void);

/** The name of a result, as "PC_ERR_NO_ANSWER". "unknown result" for a number that is none. */
MEROVANE_API const char* MEROVANE_CALL Merovane_ResultName(int32_t result);

/** What a result says, in one sentence; the same for any export. */
MEROVANE_API const char* MEROVANE_CALL Merovane_ResultMeaning(int32_t result);

/** What to look at when a call gave this result, in one sentence; empty for 0. Merovane_LastFailure
 * knows more about one failure than this does about all of its kind. */
MEROVANE_API const char* MEROVANE_CALL Merovane_ResultAdvice(int32_t result);

/** The export that records an operation id, without "QV_", as "ReadFlash" for 23. Where exports
 * share an id, the first of them as merovane.h lists them. "unknown operation" for others. */
MEROVANE_API const char* MEROVANE_CALL Merovane_OperationName(uint32_t operation);

/** The name of a start mode of QV_SetPhoneStartMode; "mode of the handset's own" for those that
 * only the handset knows. */
MEROVANE_API const char* MEROVANE_CALL Merovane_StartModeName(uint32_t mode);

/* ---- Why a call failed ---------------------------------------------------------------- */

/** What a failure came from, as far as can be told. Numbers never change; later versions add some.
 */
typedef enum Merovane_Cause {
  MEROVANE_CAUSE_UNKNOWN = 0,
  /* No request was made. */
  MEROVANE_CAUSE_ARGUMENT = 1,   /* an argument was refused */
  MEROVANE_CAUSE_NO_SESSION = 2, /* the port was not begun, or has ended */
  MEROVANE_CAUSE_ENDED = 3,      /* it was ended during the call */
  MEROVANE_CAUSE_MEMORY = 4,     /* memory or threads have run out */
  MEROVANE_CAUSE_PROJECT = 5,    /* the NV project: not open, not readable, or without the path */
  /* The port cannot be opened. */
  MEROVANE_CAUSE_NO_DEVICE = 10,         /* the system has no device of that name */
  MEROVANE_CAUSE_DEVICE_TAKEN = 11,      /* another program has it */
  MEROVANE_CAUSE_DEVICE_DENIED = 12,     /* this user may not open it */
  MEROVANE_CAUSE_NO_SERIAL_DEVICE = 13,  /* the name stands for a plain file, or a folder */
  MEROVANE_CAUSE_PIPE = 14,              /* the name stands for a FIFO */
  MEROVANE_CAUSE_RATE_REFUSED = 15,      /* the device does not take the rate */
  MEROVANE_CAUSE_ADDRESS_MALFORMED = 16, /* "socket://" is not followed by host:port */
  MEROVANE_CAUSE_HOST_UNKNOWN = 17,      /* the host's name does not resolve */
  MEROVANE_CAUSE_CONNECTION_REFUSED =
      18, /* nothing listens at host:port, or it cannot be reached */
  MEROVANE_CAUSE_CHANNEL_LIBRARY =
      19, /* it cannot be loaded, makes no channel, or gives no reason */
  /* The handset did not answer as awaited. */
  MEROVANE_CAUSE_DEVICE_GONE = 30,   /* the device was unplugged, or the connection ended */
  MEROVANE_CAUSE_SILENT = 31,        /* no byte came, nor ever since the port was opened */
  MEROVANE_CAUSE_SILENT_SOCKET = 32, /* the same over TCP, where another station may be served */
  MEROVANE_CAUSE_LATE_OR_LOST = 33,  /* no byte came, but earlier requests were answered */
  MEROVANE_CAUSE_BOOTING = 34,       /* start frames came: the handset is still booting */
  MEROVANE_CAUSE_BYTE_ORDER = 35, /* frames came whose lengths make sense in the other byte order */
  MEROVANE_CAUSE_SHARED_DEVICE = 36, /* another program has the device open, too */
  MEROVANE_CAUSE_NOISE = 37,         /* bytes came that are no frames */
  MEROVANE_CAUSE_OTHER_FRAMES = 38,  /* frames of other types came */
  MEROVANE_CAUSE_REFUSED = 39,       /* the handset refused the command */
  MEROVANE_CAUSE_ANSWER = 40         /* it answered, but with too little, too much or a failure */
} Merovane_Cause;

/** One failure. Texts end with a zero, and are cut where they are longer. */
typedef struct Merovane_Failure {
  /** In: sizeof(Merovane_Failure). A later library fills as much of it as the caller knows. */
  uint32_t struct_bytes;
  int32_t port; /**< 0: no port was reached */
  int32_t result;
  /** Under which the result was reported; 0: none. */
  uint32_t operation;
  uint32_t cause; /**< a Merovane_Cause */
  /** How long the call took, and the time limit that it was given, both in milliseconds; a limit of
   * 0: none. */
  uint32_t elapsed_ms;
  uint32_t limit_ms;
  /** The operating system's error number (errno, or that of GetLastError), 0: none. */
  int32_t system_error;
  /** What came during the call's last wait. */
  uint32_t bytes_seen;
  uint32_t frames_seen; /**< whole frames, start frames among them */
  uint32_t start_frames_seen;
  uint32_t swapped_frames_seen; /**< whose length makes sense in the other byte order only */
  char function[64];            /**< the export, as "QV_ReadFlash_MT" */
  /** What the port stands for: "COM5", "/dev/ttyUSB0", "socket://station7:5000"; empty: no port. */
  char device[256];
  char system_text[160]; /**< what the system says of system_error */
  char frames[160];      /**< types and subtypes of the frames seen, as "10/1, 10/2 (3 times)" */
  /** What happened and what to check next, in a sentence or two. */
  char advice[512];
} Merovane_Failure;

/** Gives the last call that failed.
 * @param port     of that port; 0: of the calling thread, on whatever port
 * @param failure  filled when there is one
 * @return 1 when there is one, 0 when none, or for a null pointer, or a struct_bytes below that of
 *   the first version. A call that succeeds leaves it as it is */
MEROVANE_API int32_t MEROVANE_CALL Merovane_LastFailure(int32_t port, Merovane_Failure* failure);

/** Forgets the last failure of a port (0: of the calling thread). */
MEROVANE_API void MEROVANE_CALL Merovane_ForgetFailure(int32_t port);

/* ---- Settings ------------------------------------------------------------------------- */

/** Has the settings file read in, and logs written to, this folder instead of the one that holds
 * the program. Before the first session only.
 * @param folder  it must exist
 * @return 0 (PC_ERR_SUCCESS); PC_ERR_INVALID_PARAM for null or no folder;
 * PC_ERR_PORT_ALREADY_OPENED after a session has begun: nothing changes then */
MEROVANE_API int32_t MEROVANE_CALL Merovane_SetFolder(const char* folder);

/** Gives the settings in force as a JSON object:
 *   {"file": "C:\\station\\Merovane.ini", "found": true,
 *    "settings": [{"section": "Inc Recv Timeout", "key": "Inc Recv Timeout", "value": "200",
 *                  "source": "file"}, ...],          source: "file", "default", "program"
 *    "problems": [{"section": "Record Comm Log", "key": "Record Useful Log", "value": "yes",
 *                  "text": "..."}, ...]}
 * Problems are unknown sections and keys, values that are no numbers, a log folder that cannot be
 * written, a channel server that is asked for and not reached, companions that are missing.
 * @param text      null: only the size is wanted
 * @param capacity  room at `text`; what does not fit is cut, and a zero ends it
 * @return the bytes that all of it takes, the ending zero included */
MEROVANE_API uint32_t MEROVANE_CALL Merovane_Settings(char* text, uint32_t capacity);

/* ---- Calls as they are made ----------------------------------------------------------- */

typedef enum Merovane_Trace {
  MEROVANE_TRACE_OFF = 0,
  MEROVANE_TRACE_CALLS = 1,   /* payloads and buffers by their sizes */
  MEROVANE_TRACE_PAYLOADS = 2 /* with their bytes */
} Merovane_Trace;

/** Switches the trace: Com5_Trace.jsonl beside the logs of port 5 (Com0_Trace.jsonl for calls that
 * reached no port), with one JSON object for each call of an exported function, as docs/trace.md
 * describes it. The setting "Record Trace" of section "Record Comm Log" says how it starts, and
 * again at Merovane_SetFolder.
 * @param trace  a Merovane_Trace
 * @return 0 (PC_ERR_SUCCESS); PC_ERR_INVALID_PARAM for another number; PC_ERR_ENTER_MODE_FAILED
 * when the system gives no thread */
MEROVANE_API int32_t MEROVANE_CALL Merovane_SetTrace(uint32_t trace);

typedef enum Merovane_Event {
  MEROVANE_EVENT_LOG_LINE = 1, /* text: a line of the Useful log without its time */
  MEROVANE_EVENT_CALL = 2,     /* text: the JSON object of a call, as in the trace */
  MEROVANE_EVENT_DROPPED = 3   /* text: how many lines and calls of the port are missing here */
} Merovane_Event;

/** Told of log lines, whether or not a Useful log is written, and of calls as they end. It is
 * called on a thread of the library's own that holds no lock, and no call waits for it: when it is
 * slow, what comes is kept, up to 16 MiB, and then dropped. It may call any function, but hears
 * nothing of what it does itself, and Merovane_Flush gives it 0.
 * @param port  0 for a call that reached none
 * @param text  valid until the listener returns; JSON is UTF-8, a line as the log has it */
typedef void(MEROVANE_CALL* Merovane_Listener)(void* context, uint32_t event, int32_t port,
                                               const char* text);

/** Replaces the listener. When it returns, the former one is not being called and will not be
 * again; called by the listener itself, it returns at once. Do not hold a lock that the listener
 * takes.
 * @param listener  null: nobody listens
 * @param context   given to the listener as it is
 * @return 0 (PC_ERR_SUCCESS), or PC_ERR_ENTER_MODE_FAILED when the system gives no thread */
MEROVANE_API int32_t MEROVANE_CALL Merovane_SetListener(Merovane_Listener listener, void* context);

/** Waits until all calls that have returned are in the trace and told to the listener. The ends of
 * sessions do so too, for at most 200 ms, and so does the end of the process unless it is killed.
 * @param time_limit_ms  of the wait
 * @return 1 when they are, 0 when the time ran out */
MEROVANE_API int32_t MEROVANE_CALL Merovane_Flush(uint32_t time_limit_ms);

#ifdef __cplusplus
}
#endif
#endif
