// The database classes by name.
#pragma once

#include "host/export.h"
#include "host/odrx/class.h"

// The class of a database name such as "AcDbLine", compared exactly; null when the host has no such class.
[[nodiscard]] KVHOST_API const OdRxClass* FindDatabaseClass(const QString& name);
