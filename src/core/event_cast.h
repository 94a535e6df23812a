// An event of the journal as one of its kinds, without counting the reference.
#pragma once

#include "host/odrx/object.h"

namespace kv
{
// Null when it is another kind or no event.
template <class Event>
[[nodiscard]] Event* EventAs(OdRxObject* event)
{
    return event != nullptr ? static_cast<Event*>(event->queryX(Event::desc())) : nullptr;
}
} // namespace kv
