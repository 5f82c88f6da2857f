#include "merovane/merovane.h"

/* The types of a few functions, as a C compiler sees them. */
int32_t(MEROVANE_CALL* const header_begin)(int32_t, int32_t) = QV_BeginPhoneTest;
int32_t(MEROVANE_CALL* const header_end)(void) = QV_EndPhoneTest;
