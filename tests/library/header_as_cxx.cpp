#include "merovane/merovane.h"

static_assert(PC_ERR_SUCCESS == 0 && QV_REFUSED == 39, "the codes are numbers of the interface");
static_assert(sizeof(QV_CELL_INFO) == 32, "eight numbers without padding");
