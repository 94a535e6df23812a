// Polylines, splines, meshes and filled shapes.
#pragma once

#include "host/db/curves.h"

class KVHOST_API OdDbPolyline : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbPolyline)
};

class KVHOST_API OdDb2dPolyline : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDb2dPolyline)
};

class KVHOST_API OdDb3dPolyline : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDb3dPolyline)
};

class KVHOST_API OdDbSpline : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbSpline)
};

class KVHOST_API OdDbMline : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbMline)

    // The number of vertices, and the vertex at a 0-based index.
    [[nodiscard]] virtual int numVertices() const = 0;
    [[nodiscard]] virtual OdGePoint3d vertexAt(int index) const = 0;

    // True when the last vertex is joined to the first.
    [[nodiscard]] virtual bool closedMline() const = 0;
};

class KVHOST_API OdDbPolygonMesh : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbPolygonMesh)
};

class KVHOST_API OdDbPolyFaceMesh : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbPolyFaceMesh)
};

class KVHOST_API OdDbFace : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbFace)
};

class KVHOST_API OdDbSolid : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbSolid)
};

class KVHOST_API OdDbTrace : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbTrace)
};
