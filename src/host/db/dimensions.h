// Dimensions: the points that define each class, in drawing units.
#pragma once

#include "host/db/object.h"
#include "host/ge/point3d.h"

class KVHOST_API OdDbDimension : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbDimension)

    // The object that a reference of the dimension's association leads to, 0 the first and 2 the second; null when the
    // dimension isn't associated with one.
    [[nodiscard]] virtual OdDbObjectId associatedObject(int reference) const = 0;

    // What moves out when text and arrows don't fit: 0 both, 1 the arrows, 2 the text, 3 whatever fits best, 4 neither.
    [[nodiscard]] virtual int dimfit() const = 0;

    // True when the text is aligned with the dimension line, inside and outside the extension lines.
    [[nodiscard]] virtual bool textInsideAlign() const = 0;
    [[nodiscard]] virtual bool textOutsideAlign() const = 0;

    // The length of extension lines of fixed length in drawing units.
    [[nodiscard]] virtual double getExtLineFixLen() const = 0;
};

class KVHOST_API OdDbAlignedDimension : public OdDbDimension
{
    ODRX_DECLARE_MEMBERS(OdDbAlignedDimension)

    [[nodiscard]] virtual OdGePoint3d xLine1Point() const = 0;
    [[nodiscard]] virtual OdGePoint3d xLine2Point() const = 0;
    [[nodiscard]] virtual OdGePoint3d dimLinePoint() const = 0;
};

class KVHOST_API OdDbRotatedDimension : public OdDbDimension
{
    ODRX_DECLARE_MEMBERS(OdDbRotatedDimension)

    [[nodiscard]] virtual OdGePoint3d xLine1Point() const = 0;
    [[nodiscard]] virtual OdGePoint3d xLine2Point() const = 0;
    [[nodiscard]] virtual OdGePoint3d dimLinePoint() const = 0;

    // The angle of the dimension line in radians.
    [[nodiscard]] virtual double rotation() const = 0;
};

class KVHOST_API OdDb2LineAngularDimension : public OdDbDimension
{
    ODRX_DECLARE_MEMBERS(OdDb2LineAngularDimension)

    [[nodiscard]] virtual OdGePoint3d xLine1Start() const = 0;
    [[nodiscard]] virtual OdGePoint3d xLine1End() const = 0;
    [[nodiscard]] virtual OdGePoint3d xLine2Start() const = 0;
    [[nodiscard]] virtual OdGePoint3d xLine2End() const = 0;
    [[nodiscard]] virtual OdGePoint3d arcPoint() const = 0;
};

class KVHOST_API OdDb3PointAngularDimension : public OdDbDimension
{
    ODRX_DECLARE_MEMBERS(OdDb3PointAngularDimension)

    [[nodiscard]] virtual OdGePoint3d centerPoint() const = 0;
    [[nodiscard]] virtual OdGePoint3d xLine1Point() const = 0;
    [[nodiscard]] virtual OdGePoint3d xLine2Point() const = 0;
    [[nodiscard]] virtual OdGePoint3d arcPoint() const = 0;
};

class KVHOST_API OdDbArcDimension : public OdDbDimension
{
    ODRX_DECLARE_MEMBERS(OdDbArcDimension)

    [[nodiscard]] virtual OdGePoint3d xLine1Point() const = 0;
    [[nodiscard]] virtual OdGePoint3d xLine2Point() const = 0;
    [[nodiscard]] virtual OdGePoint3d centerPoint() const = 0;

    // True when only a part of the arc is measured.
    [[nodiscard]] virtual bool isPartial() const = 0;
    [[nodiscard]] virtual OdGePoint3d arcPoint() const = 0;
};

class KVHOST_API OdDbOrdinateDimension : public OdDbDimension
{
    ODRX_DECLARE_MEMBERS(OdDbOrdinateDimension)

    [[nodiscard]] virtual OdGePoint3d definingPoint() const = 0;
    [[nodiscard]] virtual OdGePoint3d leaderEndPoint() const = 0;

    // True when the x ordinate is measured, false for the y ordinate.
    [[nodiscard]] virtual bool isUsingXAxis() const = 0;
    [[nodiscard]] virtual OdGePoint3d origin() const = 0;
};

class KVHOST_API OdDbDiametricDimension : public OdDbDimension
{
    ODRX_DECLARE_MEMBERS(OdDbDiametricDimension)

    [[nodiscard]] virtual OdGePoint3d chordPoint() const = 0;
};

class KVHOST_API OdDbRadialDimension : public OdDbDimension
{
    ODRX_DECLARE_MEMBERS(OdDbRadialDimension)

    [[nodiscard]] virtual OdGePoint3d chordPoint() const = 0;
};

class KVHOST_API OdDbRadialDimensionLarge : public OdDbDimension
{
    ODRX_DECLARE_MEMBERS(OdDbRadialDimensionLarge)

    // The center that the jogged line pretends, the point of its jog and the point on the curve.
    [[nodiscard]] virtual OdGePoint3d overrideCenter() const = 0;
    [[nodiscard]] virtual OdGePoint3d jogPoint() const = 0;
    [[nodiscard]] virtual OdGePoint3d chordPoint() const = 0;
};
