// How entities are selected: the points that the API's call takes.
#pragma once

#include "host/ge/point3d.h"
#include "host/odrx/array.h"

#include <vector>

struct SelectionMethod
{
    enum class Kind
    {
        Point,          // one point
        Window,         // lower and upper corner; what lies inside
        CrossingWindow, // lower and upper corner; what is touched too
        Polygon,        // the corners of a crossing polygon
        Fence,          // the points of a line that crosses what it selects
        None,           // a method that the API doesn't have
    };

    Kind kind = Kind::None;
    std::vector<OdGePoint3d> points;
};

// The selection of a recorded method, 0 to 4, and its points. Throws OdError_InvalidIndex for method 1 without points.
[[nodiscard]] SelectionMethod MakeSelectionMethod(std::int32_t method, const OdArray<OdGePoint3d>& points);
