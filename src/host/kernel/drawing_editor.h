// What commands change in the drawing at hand.
#pragma once

#include "host/db/object_id.h"
#include "host/export.h"
#include "host/ge/point3d.h"
#include "host/odrx/array.h"
#include "host/odrx/res_buf.h"

#include <vector>

// A line style: positive lengths are dashes, negative ones spaces, 0 is a dot, in drawing units.
struct CZtLinetypeDefinition
{
    OdString name;
    OdString description;
    std::vector<double> pattern;
};

// Names of records are compared without regard to case.
class KVHOST_API CZtDrawingEditor
{
public:
    CZtDrawingEditor() = default;
    virtual ~CZtDrawingEditor();
    CZtDrawingEditor(const CZtDrawingEditor&) = delete;
    CZtDrawingEditor& operator=(const CZtDrawingEditor&) = delete;

    // The line styles that every drawing has.
    [[nodiscard]] virtual OdDbObjectId getLinetypeContinuousId() = 0;
    [[nodiscard]] virtual OdDbObjectId getLinetypeByLayerId() = 0;
    [[nodiscard]] virtual OdDbObjectId getLinetypeByBlockId() = 0;

    // The line style of a name; null when the drawing has none.
    [[nodiscard]] virtual OdDbObjectId getLinetypeId(const OdString& name) = 0;

    // The line style of new entities; never null.
    [[nodiscard]] virtual OdDbObjectId currentLinetypeId() = 0;
    virtual void setCurrentLinetype(const OdDbObjectId& linetype) = 0;

    // Makes the line style, or gives the one of its name the description and the pattern.
    virtual void loadLinetype(const CZtLinetypeDefinition& definition) = 0;

    // The layer of a name, which is made when the drawing has none.
    virtual OdDbObjectId makeLayer(const OdString& name) = 0;

    // A closed polyline on a layer, added to the block of the current layout.
    virtual OdDbObjectId appendClosedPolyline(const std::vector<OdGePoint3d>& vertices, const OdDbObjectId& layer) = 0;

    // The applications that may attach data.
    [[nodiscard]] virtual bool hasApplication(const OdString& name) = 0;
    virtual void registerApplication(const OdString& name) = 0;

    // Puts a chain, whose first item is the application's name, in place of what that application attached; a chain of
    // nothing but the name takes that away. Throws OdError for an application that isn't registered and for an object
    // that is gone.
    virtual void setXData(const OdDbObjectId& object, const OdArray<OdResBufPtr>& chain) = 0;
};
