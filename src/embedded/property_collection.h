// What the application does while it records: it asks the module for the named values of the objects of the events.
#pragma once

#include "embedded/recording.h"
#include "host/kernel/converter_module.h"

namespace kv
{
// Collects the properties of every object that has an "object" line and that an event adds or modifies, in journal
// order, and puts them behind the event's own in place of those of an earlier collection.
void CollectProperties(Recording& recording, CZtConverterModule& module);
} // namespace kv
