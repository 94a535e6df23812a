// A displacement or direction in space.
#pragma once

struct OdGeVector3d
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    friend bool operator==(const OdGeVector3d&, const OdGeVector3d&) = default;
};
