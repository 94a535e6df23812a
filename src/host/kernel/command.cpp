// The run-time classes of commands, and the destructors of what they talk to.
#include "host/kernel/command.h"

ODRX_DEFINE_MEMBERS(CZtCommand, OdRxObject, "CZtCommand")
ODRX_DEFINE_MEMBERS(CZtCommandSource, OdRxObject, "CZtCommandSource")

CZtUserIO::~CZtUserIO() = default;
CZtDrawingEditor::~CZtDrawingEditor() = default;
OdEdCommandContext::~OdEdCommandContext() = default;
