// The run-time class of the converter module.
#include "host/kernel/converter_module.h"

ODRX_DEFINE_MEMBERS(CZtConverterModule, OdRxModule, "CZtConverterModule")
