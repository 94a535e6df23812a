// A drawing.
#pragma once

#include "host/db/object.h"

class KVHOST_API OdDbDatabase : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(OdDbDatabase)

    // The id of the object with the handle; null when the drawing has no such object. Never creates an object.
    [[nodiscard]] virtual OdDbObjectId getOdDbObjectId(OdDbHandle handle) = 0;

    // The object of an id of this database, opened for reading; null when it is gone.
    [[nodiscard]] virtual OdDbObjectPtr openObject(OdDbHandle handle) = 0;

    // The layout that is current: the model's or that of a sheet.
    [[nodiscard]] virtual OdDbObjectId currentLayoutId() = 0;
};
