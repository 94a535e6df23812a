// The objects of the drawing in memory: each class answers from the values that the journal gave.
#pragma once

#include "embedded/object_values.h"
#include "host/db/object.h"

namespace kv
{
class Drawing;

// A new object of the class. The drawing must outlive it. Any class at or below AcDbObject will do: one that the host
// doesn't know is an entity without values of its own.
[[nodiscard]] OdDbObjectPtr MakeStoredObject(Drawing& drawing, OdDbHandle handle, const OdRxClass* objectClass,
                                             ObjectValues values);

// The values of an object that was made here.
[[nodiscard]] ObjectValues& StoredValuesOf(OdDbObject& object);
} // namespace kv
