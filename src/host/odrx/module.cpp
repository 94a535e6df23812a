// The run-time class of modules.
#include "host/odrx/module.h"

ODRX_DEFINE_MEMBERS(OdRxModule, OdRxObject, "AcRxModule")
