// The search of the macro for the entities that a trim makes, which the API's call doesn't give back.
#pragma once

#include "host/ge/point3d.h"

#include <array>
#include <cstdint>
#include <vector>

struct TrimSearch
{
    // The classes that the macro can tell apart, in the order of their assignments.
    enum class Shape
    {
        Line,
        Ray,
        CircleArc,
        EllipseArc,
        PolyLine3D,
        Spline,
        PolyLine,
    };

    // The new entity of an index is the object of a number.
    struct Assignment
    {
        std::int32_t index;
        std::int32_t number;
    };

    // All new entities of one class, compared in one block of the macro.
    struct Block
    {
        Shape shape;
        bool isElse; // stands behind another block
        std::vector<Assignment> assignments;
    };

    // For each new entity a point at which it can be selected and six reals that tell it:
    //   line, ray, 3D polyline, spline  first x, y, z, second x, y, z
    //   circle arc                      centre x, y, z, radius, start angle, end angle
    //   ellipse arc                     centre x, y, z, major radius, minor radius, nothing
    //   2D polyline                     first x, y, nothing, second x, y, nothing
    std::vector<OdGePoint3d> selectionPoints;
    std::vector<std::array<double, 6>> properties;

    // In the order in which their classes appear.
    std::vector<Block> blocks;

    [[nodiscard]] bool IsEmpty() const { return selectionPoints.empty(); }
    [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(selectionPoints.size()); }
};
