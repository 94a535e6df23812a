// Hatches, embedded objects and regions, which fill the variable that comes in as the text.
#include "core/action_data.h"
#include "core/converter_impl.h"
#include "core/escape.h"
#include "core/logic_counters.h"
#include "objects/object_converter.h"

#include <cmath>

LogicCounters& LogicCounters::OfProcess()
{
    static LogicCounters counters;
    return counters;
}

ResultCode CZtConverterKVAPIImpl::ConvertHatch(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 18)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<QString> pattern = data.Text(0);
    const std::optional<double> scale = data.Real(1);
    const std::optional<double> angle = data.Real(2);
    const std::optional<bool> byPoints = data.Flag(3);
    const std::optional<bool> byEntities = data.Flag(4);
    const std::optional<bool> byPolyline = data.Flag(5);
    const std::optional<bool> gradient = data.Flag(6);
    if (!pattern || !scale || !angle || !byPoints || !byEntities || !byPolyline || !gradient)
    {
        return ResultNormal;
    }
    const QString& target = text;
    std::optional<QString> converted;
    if (*byPoints)
    {
        if (const OdArray<OdGePoint2d>* points = data.Points2d(7))
        {
            converted = ObjectConverter().WriteInsertHatchByInternalPoints(target, *points, *pattern, *scale, *angle);
        }
    }
    else if (*byEntities)
    {
        const std::optional<bool> erase = data.Flag(8);
        if (const OdArray<OdDbObjectId>* ids = data.Ids(7); ids != nullptr && erase)
        {
            converted = ObjectConverter().HatchByEntities(target, *ids, *pattern, *scale, *angle, *erase);
        }
    }
    else if (*byPolyline)
    {
        const OdArray<double>* bulges = data.Reals(7);
        const OdArray<OdGePoint2d>* points = data.Points2d(8);
        const std::optional<bool> erase = data.Flag(9);
        if (bulges != nullptr && points != nullptr && erase)
        {
            converted = HatchByPolyline(target, *bulges, *points, {*pattern, *scale, *angle}, *erase);
        }
    }
    else
    {
        const OdArray<std::int32_t>* counts = data.Integers(7);
        const OdArray<OdGePoint2d>* points = data.Points2d(8);
        if (counts != nullptr && points != nullptr)
        {
            converted =
                ObjectConverter().WriteInsertHatchByBoundary(target, *counts, *points, *pattern, *scale, *angle);
        }
    }
    if (!converted)
    {
        return ResultNormal;
    }
    if (*gradient)
    {
        const std::int32_t first = *byPoints ? 8 : !*byEntities && *byPolyline ? 10 : 9;
        const std::optional<OdCmColor> color1 = data.Color(first);
        const std::optional<OdCmColor> color2 = data.Color(first + 1);
        const std::optional<bool> centered = data.Flag(first + 2);
        const std::optional<double> value = data.Real(first + 3);
        if (!color1 || !color2 || !centered || !value)
        {
            return ResultNormal;
        }
        *converted += WriteGradientColors(target, *color1, *color2, *centered, *value);
    }
    text = *converted;
    return ResultNormal;
}

QString CZtConverterKVAPIImpl::HatchByPolyline(const QString& target, const OdArray<double>& bulges,
                                               const OdArray<OdGePoint2d>& points, const HatchPattern& pattern,
                                               bool erase)
{
    const QString polyline = QStringLiteral("hatch_Polyline_%1").arg(LogicCounters::OfProcess().hatchPolyline++);
    QString text = WriteInsertPolyline2DBlock(polyline, points, true);
    std::int32_t index = 0;
    for (const double bulge : bulges)
    {
        if (IsBent(bulge))
        {
            text += ObjectConverter().WriteSetSegmentAngle(polyline, index, 4.0 * std::atan(bulge));
        }
        ++index;
    }
    text += WriteInsertHatchByEntities(target, polyline, pattern.name, pattern.scale, pattern.angle, erase);
    return text;
}

ResultCode CZtConverterKVAPIImpl::ConvertEmbeddedObject(const CZtCustomAction& action, QString& text)
{
    const ActionData data(action);
    if (action.GetActionId() != 15 || data.Count() != 2)
    {
        return ResultError;
    }
    const std::optional<std::int32_t> bits = data.Integer(0);
    const std::optional<QString> path = data.Text(1);
    if (!bits || !path || path->isEmpty())
    {
        return ResultError;
    }
    text = WriteInsertEmbeddedObject(text, EscapeBackslashes(*path), (*bits & 1) != 0, (*bits & 2) != 0);
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertRegion(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 42)
    {
        return ResultError;
    }
    const ActionData data(action);
    if (data.IsEntityArray(0))
    {
        const std::int32_t number = ++LogicCounters::OfProcess().region;
        text =
            ObjectConverter().WriteInsertRegion(text, ResolveEntityVariableNames(data.Item(0), data.Item(1)), number);
    }
    return ResultNormal;
}
