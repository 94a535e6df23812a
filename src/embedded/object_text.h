// The drawing's records as lines of a journal.
#pragma once

#include "embedded/object_values.h"
#include "host/odrx/class.h"

#include <QtCore/QByteArray>

namespace kv
{
// The "object" record of an object with the values that it was given, without a line end.
[[nodiscard]] QByteArray ObjectText(OdDbHandle handle, const OdRxClass* objectClass, const ObjectValues& values);

// A "drawing" record with one value.
[[nodiscard]] QByteArray DrawingText(const ObjectKey& key, const ObjectValue& value);
} // namespace kv
