// Polylines, splines, meshes and filled shapes.
#pragma once

#include "host/db/curves.h"
#include "host/odrx/string.h"

#include <array>

class KVHOST_API OdDbPolyline : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbPolyline)

    // The vertices in their order, and whether the last one is joined to the first.
    [[nodiscard]] virtual OdArray<OdGePoint3d> vertices() const = 0;
    [[nodiscard]] virtual bool isClosed() const = 0;
};

class KVHOST_API OdDb2dPolyline : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDb2dPolyline)
};

class KVHOST_API OdDb3dPolyline : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDb3dPolyline)

    // The vertices in their order, and whether the last one is joined to the first.
    [[nodiscard]] virtual OdArray<OdGePoint3d> vertices() const = 0;
    [[nodiscard]] virtual bool isClosed() const = 0;
};

class KVHOST_API OdDbSpline : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbSpline)

    // The points that the curve fits, its end tangents and how far it may stay off the points, in drawing units.
    [[nodiscard]] virtual OdArray<OdGePoint3d> fitPoints() const = 0;
    [[nodiscard]] virtual bool isClosed() const = 0;
    [[nodiscard]] virtual OdGePoint3d startFitTangent() const = 0;
    [[nodiscard]] virtual OdGePoint3d endFitTangent() const = 0;
    [[nodiscard]] virtual double fitTolerance() const = 0;
};

class KVHOST_API OdDbMline : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbMline)

    // The number of vertices, and the vertex at a 0-based index.
    [[nodiscard]] virtual int numVertices() const = 0;
    [[nodiscard]] virtual OdGePoint3d vertexAt(int index) const = 0;

    // True when the last vertex is joined to the first.
    [[nodiscard]] virtual bool closedMline() const = 0;

    // 0 top, 1 zero, 2 bottom; the scale; the name of the style.
    [[nodiscard]] virtual int justification() const = 0;
    [[nodiscard]] virtual double scale() const = 0;
    [[nodiscard]] virtual OdString styleName() const = 0;
};

class KVHOST_API OdDbPolygonMesh : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbPolygonMesh)

    // The vertices row by row, how many stand in each direction, and whether a direction is closed.
    [[nodiscard]] virtual OdArray<OdGePoint3d> vertices() const = 0;
    [[nodiscard]] virtual int mSize() const = 0;
    [[nodiscard]] virtual int nSize() const = 0;
    [[nodiscard]] virtual bool isMClosed() const = 0;
    [[nodiscard]] virtual bool isNClosed() const = 0;
};

class KVHOST_API OdDbPolyFaceMesh : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbPolyFaceMesh)

    // Up to four 1-based indices of vertices; 0 where there is none.
    using Face = std::array<std::int32_t, 4>;
    [[nodiscard]] virtual OdArray<OdGePoint3d> vertices() const = 0;
    [[nodiscard]] virtual int numVertices() const = 0;
    [[nodiscard]] virtual OdArray<Face> faces() const = 0;
};

class KVHOST_API OdDbFace : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbFace)

    // The corners, and whether the edge that begins at a corner is visible.
    [[nodiscard]] virtual OdArray<OdGePoint3d> vertices() const = 0;
    [[nodiscard]] virtual std::array<bool, 4> visibleEdges() const = 0;
};

class KVHOST_API OdDbSolid : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbSolid)

    [[nodiscard]] virtual OdArray<OdGePoint3d> vertices() const = 0;
};

class KVHOST_API OdDbTrace : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbTrace)

    [[nodiscard]] virtual OdArray<OdGePoint3d> vertices() const = 0;
};
