// Points as one list of coordinates, in the languages whose arrays can stand in a call.
#pragma once

#include "backends/text/fill.h"
#include "host/odrx/array.h"

#include <QtCore/QStringList>

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

} // namespace kv
