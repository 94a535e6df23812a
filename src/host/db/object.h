// Objects of a drawing, as far as the conversion reads them.
#pragma once

#include "host/db/object_id.h"
#include "host/odrx/array.h"
#include "host/odrx/object.h"
#include "host/odrx/res_buf.h"
#include "host/odrx/string.h"

class KVHOST_API OdDbObject : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(OdDbObject)

    // The identity of the object in its database.
    [[nodiscard]] virtual OdDbObjectId objectId() const = 0;
    [[nodiscard]] OdDbHandle getDbHandle() const { return objectId().getHandle(); }

    // True when the object was erased and only waits for an undo.
    [[nodiscard]] virtual bool isErased() const = 0;

    // The extended data that an application attached, its name first; empty when there is none.
    [[nodiscard]] virtual OdArray<OdResBufPtr> xData(const OdString& application) const = 0;

    // The objects that are told of changes of this one, in their order.
    [[nodiscard]] virtual OdArray<OdDbObjectId> getPersistentReactors() const = 0;
};

// Whatever can be seen in the drawing.
class KVHOST_API OdDbEntity : public OdDbObject
{
    ODRX_DECLARE_MEMBERS(OdDbEntity)
};
