// Points as one list of coordinates, in the languages whose arrays can stand in a call.
#pragma once

#include "backends/text/fill.h"
#include "host/odrx/array.h"

#include <QtCore/QStringList>

#include <span>

namespace kv
{

// The coordinates of all points, "x,y,x,y" without blanks; Form tells how they are written.
template <AnyOf<GeneralPoint2d, FixedPoint2d> Form>
[[nodiscard]] QString CoordinateList(const OdArray<OdGePoint2d>& points)
{
    QStringList pairs;
    for (const OdGePoint2d& point : points)
    {
        pairs.append(Fill<Form>("%1,%2", Form{point}));
    }
    return pairs.join(QLatin1Char(','));
}

template <AnyOf<GeneralPoint, FixedPoint> Form>
[[nodiscard]] QString CoordinateList(std::span<const OdGePoint3d> points)
{
    QStringList triples;
    for (const OdGePoint3d& point : points)
    {
        triples.append(Fill<Form>("%1,%2,%3", Form{point}));
    }
    return triples.join(QLatin1Char(','));
}

// The integers, "a,b" without blanks.
[[nodiscard]] inline QString IntegerList(std::span<const std::int32_t> values)
{
    QStringList texts;
    for (const std::int32_t value : values)
    {
        texts.append(QString::number(value));
    }
    return texts.join(QLatin1Char(','));
}

} // namespace kv
