#include "merovane/merovane.h"

/* The types of a few functions, as a C compiler sees them. */
int32_t(MEROVANE_CALL* const kHeaderBegin)(int32_t, int32_t) = QV_BeginPhoneTest;
int32_t(MEROVANE_CALL* const kHeaderEnd)(void) = QV_EndPhoneTest;
