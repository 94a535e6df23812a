// The run-time descriptions of the journal events.
#include "host/kernel/journal_events.h"

ODRX_DEFINE_MEMBERS(CZtPropertyElement, OdRxObject, "CZtPropertyElement")
ODRX_DEFINE_MEMBERS(CZtUserCommand, OdRxObject, "CZtUserCommand")
ODRX_DEFINE_MEMBERS(CZtUserInteraction, OdRxObject, "CZtUserInteraction")
ODRX_DEFINE_MEMBERS(CZtObjectAdded, OdRxObject, "CZtObjectAdded")
ODRX_DEFINE_MEMBERS(CZtObjectModified, OdRxObject, "CZtObjectModified")
ODRX_DEFINE_MEMBERS(CZtPropertyChanged, CZtPropertyElement, "CZtPropertyChanged")
ODRX_DEFINE_MEMBERS(CZtSysVarChanged, OdRxObject, "CZtSysVarChanged")
ODRX_DEFINE_MEMBERS(CZtUserSelection, OdRxObject, "CZtUserSelection")
ODRX_DEFINE_MEMBERS(CZtCustomAction, OdRxObject, "CZtCustomAction")
