// A point in space, in drawing units.
#pragma once

#include "host/ge/vector3d.h"

struct OdGePoint3d
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    friend bool operator==(const OdGePoint3d&, const OdGePoint3d&) = default;

    friend OdGePoint3d operator+(const OdGePoint3d& point, const OdGeVector3d& offset)
    {
        return {point.x + offset.x, point.y + offset.y, point.z + offset.z};
    }

    friend OdGePoint3d operator-(const OdGePoint3d& point, const OdGeVector3d& offset)
    {
        return {point.x - offset.x, point.y - offset.y, point.z - offset.z};
    }
};
