// The objects of the journal that stand for a variable of the macro.
#pragma once

#include "host/db/handle.h"
#include "host/odrx/class.h"

#include <cstdint>

#include <tsl/robin_map.h>

// An object's class and its number, as of the moment that the number was given.
struct ObjectPair
{
    const OdRxClass* objectClass = nullptr;
    std::int32_t number = 0;
};

// Being in here is what makes an object known to the macro. Only looked up, never walked.
class KnownObjects
{
public:
    KnownObjects() { objects_.max_load_factor(maxLoad); }

    // Enters an object; an existing entry of the handle is replaced.
    void Set(OdDbHandle handle, ObjectPair object) { objects_.insert_or_assign(handle, object); }

    // The entry of a handle, null when the object isn't known. Valid until the next Set.
    [[nodiscard]] const ObjectPair* Find(OdDbHandle handle) const
    {
        const auto found = objects_.find(handle);
        return found != objects_.end() ? &found.value() : nullptr;
    }

private:
    // Numbers in sequence fill a table evenly: it may be fuller than usual.
    static constexpr float maxLoad = 0.8F;

    // Handles mostly follow each other: in a flat table so do their entries.
    tsl::robin_map<OdDbHandle, ObjectPair> objects_;
};
