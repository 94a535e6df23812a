// Editing of polylines, joining of entities, clip boundaries.
#include "core/action_data.h"
#include "core/converter_impl.h"
#include "core/variable_names.h"
#include "host/kernel/services.h"
#include "objects/object_converter.h"

#include <cmath>

namespace
{

// Bulges and angles below this size are straight segments.
constexpr double StraightBelow = 1e-10;

OdArray<OdGePoint2d> Flat(const OdArray<OdGePoint3d>& points)
{
    OdArray<OdGePoint2d> flat;
    flat.reserve(points.size());
    for (const OdGePoint3d& point : points)
    {
        flat.append({point.x, point.y});
    }
    return flat;
}

} // namespace

bool CZtConverterKVAPIImpl::IsBent(double value)
{
    return std::abs(value) > StraightBelow;
}

ResultCode CZtConverterKVAPIImpl::ConvertPolylineEdit(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 38)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<QString> keyword = data.Text(0);
    if (!keyword)
    {
        return ResultNormal;
    }
    switch (data.Count())
    {
    case 3:
        text += EditPolylines(*keyword, data);
        break;
    case 4:
    case 5:
    case 6:
        text += EditPolyline(*keyword, data);
        break;
    default:
        break;
    }
    return ResultNormal;
}

// Edits of several polylines at once.
QString CZtConverterKVAPIImpl::EditPolylines(const QString& keyword, const ActionData& data)
{
    if (!data.IsEntityArray(1))
    {
        return {};
    }
    const auto& handles = data.Item(1).GetHandleArray();
    const auto& classes = data.Item(2).GetClassArray();
    QString text;
    QStringList names;
    std::vector<QString> classNames;
    for (std::size_t i = 0; i < handles.size() && i < classes.size(); ++i)
    {
        if (classes[i] != nullptr)
        {
            QString name;
            text += ObjectConverter().GetObjectByHandle(handles[i], classes[i], name);
            if (!name.isEmpty())
            {
                names.append(name);
                classNames.push_back(classes[i]->name());
            }
        }
    }
    if (keyword == QLatin1String("_FIT"))
    {
        return text + WriteFitPolyline(names);
    }
    if (keyword == QLatin1String("_DECURVE"))
    {
        return text + WriteDecurvePolyline(names);
    }
    if (keyword == QLatin1String("_SPLINE"))
    {
        return text + WriteSplinePolyline(names);
    }
    if (keyword != QLatin1String("_JOIN"))
    {
        return {};
    }
    QString joins;
    for (int i = 1; i < names.size(); ++i)
    {
        const QString& className = classNames[static_cast<std::size_t>(i)];
        if (className.compare(QLatin1String("AcDbPolyline"), Qt::CaseInsensitive) == 0)
        {
            joins += WriteJoinPolyline(names.front(), names.at(i));
        }
        else if (className.compare(QLatin1String("AcDbLine"), Qt::CaseInsensitive) == 0)
        {
            joins += WriteJoinLine(names.front(), names.at(i));
        }
        else if (className.compare(QLatin1String("AcDbArc"), Qt::CaseInsensitive) == 0)
        {
            joins += WriteJoinCircleArc(names.front(), names.at(i));
        }
    }
    return joins.isEmpty() ? QString() : text + joins;
}

// Edits of one polyline.
QString CZtConverterKVAPIImpl::EditPolyline(const QString& keyword, const ActionData& data)
{
    const std::optional<std::int32_t> index = data.Integer(3);
    if (!data.IsObject(1) || !index)
    {
        return {};
    }
    QString variable;
    const QString lookup =
        ObjectConverter().GetObjectByHandle(data.Item(1).GetHandle(), data.Item(2).GetClass(), variable);
    if (variable.isEmpty())
    {
        return {};
    }
    const auto is = [&](const char* word) { return keyword == QLatin1String(word); };
    QString edit;
    if (data.Count() == 4 && (is("_SPLIT") || is("_SPLIT3D")))
    {
        edit = WriteSplitPolyline(variable, *index, is("_SPLIT3D"));
    }
    else if (data.Count() == 5)
    {
        const std::optional<OdGePoint3d> point = data.Point(4);
        const std::optional<std::int32_t> second = data.Integer(4);
        if (point && (is("_INSERT") || is("_INSERT3D")))
        {
            edit = WriteAddVertexAfter(variable, *index, *point, is("_INSERT3D"));
        }
        else if (point && (is("_MOVE") || is("_MOVE3D")))
        {
            edit = WriteSetVertexCoordinate(variable, *index, *point, is("_MOVE3D"));
        }
        else if (second && is("_STRAIGHTEN"))
        {
            edit = WriteStraightenPolyline(variable, *index, *second);
        }
    }
    else if (data.Count() == 6 && is("_WIDTH"))
    {
        const std::optional<double> start = data.Real(4);
        const std::optional<double> end = data.Real(5);
        if (start && end)
        {
            edit = WriteSetSegmentWidths(variable, *index, *start, *end);
        }
    }
    return edit.isEmpty() ? QString() : lookup + edit;
}

ResultCode CZtConverterKVAPIImpl::ConvertPolyline3DVertex(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 40)
    {
        return ResultError;
    }
    const ActionData data(action);
    if (data.Count() != 3 && data.Count() != 4)
    {
        return ResultNormal;
    }
    const std::optional<std::int32_t> index = data.Integer(2);
    const std::optional<OdGePoint3d> point = data.Count() == 4 ? data.Point(3) : std::nullopt;
    if (!data.IsObject(0) || !index || (data.Count() == 4 && !point))
    {
        return ResultNormal;
    }
    QString variable;
    const QString lookup =
        ObjectConverter().GetObjectByHandle(data.Item(0).GetHandle(), data.Item(1).GetClass(), variable);
    if (!variable.isEmpty())
    {
        text += lookup;
        text += point ? WriteAddVertexAfter(variable, *index, *point, true) : WriteDeleteVertex(variable, *index);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertJoin(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 48)
    {
        return ResultError;
    }
    const ActionData data(action);
    if (!data.IsObject(0) || !data.IsObject(2))
    {
        return ResultNormal;
    }
    QString first;
    QString second;
    QString converted = ObjectConverter().GetObjectByHandle(data.Item(0).GetHandle(), data.Item(1).GetClass(), first);
    converted += ObjectConverter().GetObjectByHandle(data.Item(2).GetHandle(), data.Item(3).GetClass(), second);
    if (!first.isEmpty() && !second.isEmpty())
    {
        text = converted + WriteJoinEntity(first, second);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertPolyline2DBlock(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 16)
    {
        return ResultError;
    }
    const ActionData data(action);
    const OdArray<OdGePoint3d>* vertices = data.Points(0);
    const OdArray<OdGePoint3d>* bulges = data.Points(1);
    const std::optional<bool> closed = data.Flag(2);
    const OdArray<double>* startWidths = data.Reals(5);
    const OdArray<double>* endWidths = data.Reals(6);
    const std::optional<bool> isGlobal = data.Flag(7);
    const std::optional<double> globalWidth = data.Real(8);
    if (vertices == nullptr || bulges == nullptr || !closed || !data.IsObject(3) || startWidths == nullptr ||
        endWidths == nullptr || !isGlobal || !globalWidth)
    {
        return ResultNormal;
    }
    QString variable = text;
    if (variable.isEmpty() && !RegisterOpenable(data.Item(3).GetHandle(), data.Item(4).GetClass(), variable))
    {
        return ResultError;
    }
    QString converted = WriteInsertPolyline2DBlock(variable, Flat(*vertices), *closed);
    std::int32_t index = 0;
    for (const OdGePoint3d& bulge : *bulges)
    {
        if (IsBent(bulge.x))
        {
            converted += ObjectConverter().WriteSetSegmentAngle(variable, index, bulge.x);
        }
        ++index;
    }
    if (startWidths->size() == endWidths->size())
    {
        for (std::size_t i = 0; i < startWidths->size(); ++i)
        {
            const auto segment = static_cast<std::int32_t>(i);
            converted += ObjectConverter().WriteSetPairProperty(variable, QStringLiteral("SetSegmentStartWidth"),
                                                                segment, (*startWidths)[i]);
            converted += ObjectConverter().WriteSetPairProperty(variable, QStringLiteral("SetSegmentEndWidth"), segment,
                                                                (*endWidths)[i]);
        }
    }
    if (*isGlobal)
    {
        converted += ObjectConverter().WriteSetDoubleProperty(variable, QStringLiteral("GlobalWidth"), *globalWidth);
    }
    text = converted;
    return ResultNormal;
}

// Makes an object of the drawing known and gives its variable; false when it can't be opened.
bool CZtConverterKVAPIImpl::RegisterOpenable(OdDbHandle handle, const OdRxClass* objectClass, QString& variable)
{
    CZtDocument* document = ACTIVE_DOCUMENT();
    if (document == nullptr || !document->GetZtDatabase()->getOdDbObjectId(handle).openObject())
    {
        return false;
    }
    const ObjectPair object = RegisterObject(handle, objectClass);
    QString name;
    QString type;
    if (GetObjectTypeNames(objectClass, name, type) == ResultNormal)
    {
        variable = VariableName(name, object.number, PlainPointerMark::Removed);
    }
    return true;
}

ResultCode CZtConverterKVAPIImpl::ConvertClipBoundary(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 46)
    {
        return ResultError;
    }
    const ActionData data(action);
    const OdArray<OdGePoint2d>* boundary = data.Points2d(2);
    const bool isRemoval = data.Flag(2).has_value();
    if (!data.IsObject(0) || (boundary == nullptr && !isRemoval))
    {
        return ResultNormal;
    }
    QString variable = text;
    if (variable.isEmpty())
    {
        // The look-up of an unknown reference goes with the text that came in; the format's.
        static_cast<void>(
            ObjectConverter().GetObjectByHandle(data.Item(0).GetHandle(), data.Item(1).GetClass(), variable));
    }
    if (!variable.isEmpty())
    {
        text = isRemoval ? WriteRemoveClipBoundary(variable) : WriteSetClipBoundary(variable, *boundary);
    }
    return ResultNormal;
}
