// A point in the plane, in drawing units.
#pragma once

struct OdGePoint2d
{
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const OdGePoint2d&, const OdGePoint2d&) = default;
};
