// Which keys the objects of the drawing and the drawing itself may bear in a journal.
#pragma once

#include "embedded/object_values.h"
#include "host/odrx/class.h"

namespace kv
{
// The keys of the objects of a class; none for a class whose values nobody reads.
[[nodiscard]] const KeyList& KeysOfClass(const OdRxClass* objectClass);

// The keys that every object may bear.
[[nodiscard]] const KeyList& KeysOfAllObjects();

// The keys of the database-wide values.
[[nodiscard]] const KeyList& KeysOfDrawing();
} // namespace kv
