#include "graphics3d/foundation/errorlog.h"

#include "com_vexane_graphics3d_ErrorLog.h"
