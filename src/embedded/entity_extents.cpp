// Extents by the values of an entity.
#include "embedded/entity_extents.h"

#include "embedded/object_keys.h"
#include "host/db/blocks.h"
#include "host/db/curves.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kv
{
namespace
{
constexpr double quarterTurn = std::numbers::pi / 2;

void includeBox(std::optional<Extents>& extents, const OdGePoint3d& center, double halfWidth, double halfHeight)
{
    const Extents box{center.x - halfWidth, center.y - halfHeight, center.x + halfWidth, center.y + halfHeight};
    if (!extents)
    {
        extents = box;
    }
    extents->include(box.left, box.bottom);
    extents->include(box.right, box.top);
}

// The ends of the arc and the quarter points that it passes.
void includeArc(std::optional<Extents>& extents, const ObjectValues& values)
{
    const auto& center = values.get<OdGePoint3d>("center");
    const double radius = values.get<double>("radius");
    const double start = values.get<double>("startAngle");
    double sweep = std::fmod(values.get<double>("endAngle") - start, 4 * quarterTurn);
    sweep += sweep <= 0 ? 4 * quarterTurn : 0;
    const auto includeAt = [&](double angle) {
        includeBox(extents, {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle), 0}, 0, 0);
    };
    includeAt(start);
    includeAt(start + sweep);
    constexpr int quarters = 4;
    const double first = std::ceil(start / quarterTurn);
    for (int quarter = 0; quarter < quarters; ++quarter)
    {
        if (const double angle = (first + quarter) * quarterTurn; angle <= start + sweep)
        {
            includeAt(angle);
        }
    }
}

// The whole ellipse, whatever part of it is drawn.
void includeEllipse(std::optional<Extents>& extents, const ObjectValues& values)
{
    const auto& major = values.get<OdGePoint3d>("majorAxis");
    const double length = std::hypot(major.x, major.y);
    const double ratio = length > 0 ? values.get<double>("minorRadius") / length : 0;
    includeBox(extents, values.get<OdGePoint3d>("center"), std::hypot(major.x, ratio * major.y),
               std::hypot(major.y, ratio * major.x));
}

// Points that aren't of the shape: directions, factors, and what may be left at the origin.
bool isOfShape(std::string_view key)
{
    static constexpr std::string_view others[] = {"startTangent", "endTangent", "majorAxis",
                                                  "scale",        "origin",     "alignmentPoint"};
    return std::ranges::find(others, key) == std::end(others);
}
} // namespace

Extents Extents::between(const OdGePoint3d& one, const OdGePoint3d& other)
{
    return {std::min(one.x, other.x), std::min(one.y, other.y), std::max(one.x, other.x), std::max(one.y, other.y)};
}

void Extents::include(double x, double y)
{
    left = std::min(left, x);
    bottom = std::min(bottom, y);
    right = std::max(right, x);
    top = std::max(top, y);
}

bool Extents::contains(const Extents& other) const
{
    return left <= other.left && bottom <= other.bottom && other.right <= right && other.top <= top;
}

std::optional<Extents> ExtentsOf(const OdRxClass* objectClass, const ObjectValues& values)
{
    std::optional<Extents> extents;
    if (objectClass == OdDbRay::desc() || objectClass == OdDbXline::desc())
    {
        return extents;
    }
    if (objectClass == OdDbCircle::desc())
    {
        const double radius = values.get<double>("radius");
        includeBox(extents, values.get<OdGePoint3d>("center"), radius, radius);
    }
    else if (objectClass == OdDbArc::desc())
    {
        includeArc(extents, values);
    }
    else if (objectClass == OdDbEllipse::desc())
    {
        includeEllipse(extents, values);
    }
    else if (objectClass == OdDbViewport::desc())
    {
        includeBox(extents, values.get<OdGePoint3d>("center"), values.get<double>("width") / 2,
                   values.get<double>("height") / 2);
    }
    else
    {
        for (const ObjectKey& key : KeysOfClass(objectClass))
        {
            if (std::holds_alternative<OdGePoint3d>(key.defaultValue) && isOfShape(key.name))
            {
                includeBox(extents, values.get<OdGePoint3d>(key.name), 0, 0);
            }
            for (const OdGePoint3d& point : values.get<PointList>(key.name))
            {
                includeBox(extents, point, 0, 0);
            }
        }
    }
    return extents;
}
} // namespace kv
