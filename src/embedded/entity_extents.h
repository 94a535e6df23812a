// How far an entity reaches in the plane.
#pragma once

#include "embedded/object_values.h"
#include "host/odrx/class.h"

#include <optional>

namespace kv
{
struct Extents
{
    // The smallest rectangle around two points.
    static Extents between(const OdGePoint3d& one, const OdGePoint3d& other);

    void include(double x, double y);

    // True when this rectangle, its edges included, holds the whole other one.
    [[nodiscard]] bool contains(const Extents& other) const;

    double left;
    double bottom;
    double right;
    double top;
};

// The rectangle around what the entity's values tell of its shape; for texts, images and the like around the point
// where they stand. Nothing for what has no end and for entities without a shape of their own.
[[nodiscard]] std::optional<Extents> ExtentsOf(const OdRxClass* objectClass, const ObjectValues& values);
} // namespace kv
