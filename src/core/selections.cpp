// The replay of selections: as a prompt, by a method, through a filter.
#include "core/action_data.h"
#include "core/converter_impl.h"
#include "core/type_table.h"
#include "core/variable_names.h"

namespace
{

// The corners of the box around all points, lower first. Without points it is inside out; the format's.
std::vector<OdGePoint3d> BoundingBox(const OdArray<OdGePoint3d>& points)
{
    constexpr double far = 1e20;
    OdGePoint3d lower{far, far, far};
    OdGePoint3d upper{-far, -far, -far};
    for (const OdGePoint3d& point : points)
    {
        lower = {std::min(lower.x, point.x), std::min(lower.y, point.y), std::min(lower.z, point.z)};
        upper = {std::max(upper.x, point.x), std::max(upper.y, point.y), std::max(upper.z, point.z)};
    }
    return {lower, upper};
}

// The constant of an object type by its short name. A name without a type takes the last one; the format's.
QString TypeConstant(const QString& word)
{
    const auto types = kv::ObjectTypes();
    const auto found = std::ranges::find(types, word, &kv::ObjectType::word);
    return found != types.end() ? found->constant : types.back().constant;
}

} // namespace

SelectionMethod MakeSelectionMethod(std::int32_t method, const OdArray<OdGePoint3d>& points)
{
    using Kind = SelectionMethod::Kind;
    // Fewer points than these make a window.
    constexpr std::size_t cornersOfPolygon = 5;
    const auto all = [&] { return std::vector<OdGePoint3d>(points.begin(), points.end()); };
    switch (method)
    {
    case 1:
        return {Kind::Point, {points[0]}};
    case 2:
        return {Kind::Window, BoundingBox(points)};
    case 0:
    case 3:
        return points.size() < cornersOfPolygon ? SelectionMethod{Kind::CrossingWindow, BoundingBox(points)}
                                                : SelectionMethod{Kind::Polygon, all()};
    case 4:
        return {Kind::Fence, all()};
    default:
        return {};
    }
}

ResultCode CZtConverterKVAPIImpl::ConvertUserSelection(const CZtUserSelection& event, QString& text)
{
    const EntityArray entities =
        NameEntities(event.GetSelectedHandles(), event.GetSelectedClasses(), PlainPointerMark::Kept);
    if (entities.size() > 0)
    {
        text = WriteSelectEntities(entities);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertSelectByMethods(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 10)
    {
        return ResultError;
    }
    const ActionData data(action);
    QString selections;
    for (std::int32_t i = 0; i < data.Count(); i += 2)
    {
        const std::optional<std::int32_t> method = data.Integer(i);
        const OdArray<OdGePoint3d>* points = data.Points(i + 1);
        if (!method || points == nullptr)
        {
            return ResultNormal;
        }
        selections += WriteSelectByMethods(MakeSelectionMethod(*method, *points), false);
    }
    text += selections;
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertSelectionFilter(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 11)
    {
        return ResultError;
    }
    const ActionData data(action);
    QStringList typeNames;
    std::int32_t method = 0;
    OdArray<OdGePoint3d> points;
    for (std::int32_t i = 0; i < data.Count(); ++i)
    {
        if (const std::optional<QString> word = data.Text(i))
        {
            typeNames.append(TypeConstant(*word));
        }
        else if (const std::optional<std::int32_t> number = data.Integer(i))
        {
            method = *number;
        }
        else if (const OdArray<OdGePoint3d>* given = data.Points(i))
        {
            points = *given;
        }
    }
    text += WriteSetSelectionFilter(MakeSelectionMethod(method, points), typeNames);
    return ResultNormal;
}
