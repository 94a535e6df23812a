// Curves and points: lengths in drawing units, angles in radians.
#pragma once

#include "host/db/object.h"
#include "host/ge/point3d.h"

class KVHOST_API OdDbCurve : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbCurve)
};

class KVHOST_API OdDbLine : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbLine)

    [[nodiscard]] virtual OdGePoint3d startPoint() const = 0;
    [[nodiscard]] virtual OdGePoint3d endPoint() const = 0;
};

class KVHOST_API OdDbCircle : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbCircle)

    [[nodiscard]] virtual OdGePoint3d center() const = 0;
    [[nodiscard]] virtual double radius() const = 0;
};

class KVHOST_API OdDbArc : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbArc)

    [[nodiscard]] virtual OdGePoint3d center() const = 0;
    [[nodiscard]] virtual double radius() const = 0;
    [[nodiscard]] virtual double startAngle() const = 0;
    [[nodiscard]] virtual double endAngle() const = 0;
};

class KVHOST_API OdDbEllipse : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbEllipse)

    [[nodiscard]] virtual OdGePoint3d center() const = 0;

    // From the centre to the end of the major axis.
    [[nodiscard]] virtual OdGePoint3d majorAxis() const = 0;
    [[nodiscard]] virtual double minorRadius() const = 0;
    [[nodiscard]] virtual double startAngle() const = 0;
    [[nodiscard]] virtual double endAngle() const = 0;
};

class KVHOST_API OdDbPoint : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbPoint)

    [[nodiscard]] virtual OdGePoint3d position() const = 0;
};

class KVHOST_API OdDbRay : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbRay)

    // Where the ray begins, and a second point that it passes.
    [[nodiscard]] virtual OdGePoint3d basePoint() const = 0;
    [[nodiscard]] virtual OdGePoint3d secondPoint() const = 0;
};

class KVHOST_API OdDbXline : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbXline)

    // Two points of the line.
    [[nodiscard]] virtual OdGePoint3d basePoint() const = 0;
    [[nodiscard]] virtual OdGePoint3d secondPoint() const = 0;
};
