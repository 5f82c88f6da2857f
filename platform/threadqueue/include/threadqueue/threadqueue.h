/* Thread message queues for systems other than Windows.
 *
 * A thread has one queue per process, shared by every library in it. It behaves
 * as the Windows one does for posted messages: it comes into being when its
 * thread first asks for a message, it is gone with its thread, it holds 10,000
 * messages, posting never waits, and WM_QUIT posted as a message is taken in turn. */
#ifndef THREADQUEUE_THREADQUEUE_H
#define THREADQUEUE_THREADQUEUE_H

#include <stdint.h>

#define THREADQUEUE_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

typedef struct THREADQUEUE_MESSAGE {
  uint32_t id;
  uintptr_t first; /* WPARAM */
  intptr_t second; /* LPARAM */
} THREADQUEUE_MESSAGE;

/* The calling thread's id (not 0). Does not make a queue. */
THREADQUEUE_API uint32_t threadqueue_current_thread(void);

/* 1 when posted; 0 when the thread has no queue or its queue is full. */
THREADQUEUE_API int threadqueue_post(uint32_t thread_id, uint32_t id, uintptr_t first,
                                     intptr_t second);

/* Takes the next message of the calling thread's queue, waiting at most `time_limit_ms`
   (0: not at all, UINT32_MAX: without end). 1 when a message was taken, else 0.
   Makes the queue if there is none. */
THREADQUEUE_API int threadqueue_take(THREADQUEUE_MESSAGE* message, uint32_t time_limit_ms);

/* Takes the first message with an id from `first_id` to `last_id`, leaving others in place; never
   waits. 1 when one was taken. */
THREADQUEUE_API int threadqueue_take_range(THREADQUEUE_MESSAGE* message, uint32_t first_id,
                                           uint32_t last_id);

#ifdef __cplusplus
}
#endif

#endif
