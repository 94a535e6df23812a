// Zoom, viewports, view tiles and the print style of a sheet.
#include "core/action_data.h"
#include "core/converter_impl.h"
#include "objects/object_converter.h"

ResultCode CZtConverterKVAPIImpl::ConvertZoom(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 41)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<QString> range = data.Text(0);
    if (!range)
    {
        return ResultNormal;
    }
    if (range->compare(QLatin1String("kvZoomRange_Window"), Qt::CaseInsensitive) != 0)
    {
        text += WriteZoom(*range, false, {}, {});
        return ResultNormal;
    }
    const std::optional<OdGePoint3d> corner1 = data.Point(1);
    const std::optional<OdGePoint3d> corner2 = data.Point(2);
    if (corner1 && corner2)
    {
        text += WriteZoom(*range, true, *corner1, *corner2);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertActivateViewport(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 43)
    {
        return ResultError;
    }
    const ActionData data(action);
    if (!data.IsObject(0))
    {
        return ResultNormal;
    }
    QString variable;
    const QString lookup =
        ObjectConverter().GetObjectByHandle(data.Item(0).GetHandle(), data.Item(1).GetClass(), variable);
    if (!variable.isEmpty())
    {
        text += lookup;
        text += WriteActivateViewport(variable);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertPolygonalViewport(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 44)
    {
        return ResultError;
    }
    const ActionData data(action);
    const OdArray<OdGePoint3d>* points = data.Points(0);
    const std::optional<QString> sheet = data.Text(3);
    if (points == nullptr || data.Points(1) == nullptr || !sheet || !data.IsObject(4))
    {
        return ResultNormal;
    }
    // Whatever variable came in, it is that of the boundary and not of the viewport.
    QString variable;
    if (!RegisterOpenable(data.Item(4).GetHandle(), data.Item(5).GetClass(), variable))
    {
        return ResultError;
    }
    OdArray<OdGePoint2d> corners;
    for (const OdGePoint3d& point : *points)
    {
        corners.append({point.x, point.y});
    }
    text = WriteInsertPolygonalViewport(variable, corners, *sheet);
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertViewTiles(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 47)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<QString> layout = data.Text(0);
    const std::optional<bool> flag = data.Flag(1);
    if (!layout || !flag || !data.IsEntityArray(2))
    {
        return ResultNormal;
    }
    const auto& handles = data.Item(2).GetHandleArray();
    const auto& classes = data.Item(3).GetClassArray();
    QString lookups;
    QStringList tiles;
    for (std::size_t i = 0; i < handles.size() && i < classes.size(); ++i)
    {
        QString tile;
        lookups += ObjectConverter().GetObjectByHandle(handles[i], classes[i], tile);
        tiles.append(tile);
    }
    text += lookups;
    text += WriteInsertViewTiles(*layout, *flag, tiles);
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertPrintStyle(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 45)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<QString> value = data.Text(0);
    const std::optional<bool> isModel = data.Flag(1);
    const std::optional<QString> sheet = data.Text(2);
    if (value && isModel && sheet)
    {
        text += ObjectConverter().WriteSetNamedProperty(QStringLiteral("PrintStyle"), *value, *isModel, *sheet);
    }
    return ResultNormal;
}
