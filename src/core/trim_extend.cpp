// Trim and extend. A trim can make new entities, which the macro then searches for.
#include "core/action_data.h"
#include "core/converter_impl.h"
#include "core/trim_search.h"
#include "host/db/polylines.h"
#include "host/kernel/services.h"

namespace
{

std::optional<TrimSearch::Shape> ShapeOf(const OdRxClass* objectClass)
{
    using Shape = TrimSearch::Shape;
    static const std::unordered_map<const OdRxClass*, Shape> shapes = {
        {OdDbLine::desc(), Shape::Line},
        {OdDbRay::desc(), Shape::Ray},
        {OdDbArc::desc(), Shape::CircleArc},
        {OdDbEllipse::desc(), Shape::EllipseArc},
        {OdDb3dPolyline::desc(), Shape::PolyLine3D},
        {OdDbSpline::desc(), Shape::Spline},
        {OdDbPolyline::desc(), Shape::PolyLine},
    };
    const auto found = shapes.find(objectClass);
    return found != shapes.end() ? std::optional(found->second) : std::nullopt;
}

// Enters a new entity among those of its class.
void AddAssignment(TrimSearch& search, TrimSearch::Shape shape, TrimSearch::Assignment assignment)
{
    auto block = std::ranges::find(search.blocks, shape, &TrimSearch::Block::shape);
    if (block == search.blocks.end())
    {
        block = search.blocks.insert(block, {shape, assignment.index != 0, {}});
    }
    block->assignments.push_back(assignment);
}

} // namespace

QString CZtConverterKVAPIImpl::SetEdgeMode()
{
    return WriteSetCommandOptionInt16(QStringLiteral("kvCommandOptionInt16_EnblEdgeExtd"),
                                      GetZtSystemServices()->Settings().EdgeMode());
}

ResultCode CZtConverterKVAPIImpl::ConvertTrim(const CZtCustomAction& action, QString& text)
{
    constexpr std::int32_t itemCount = 9;
    constexpr std::size_t reals = 6;
    if (action.GetActionId() != 6)
    {
        return ResultError;
    }
    const ActionData data(action);
    if (data.Count() != itemCount || !data.IsEntityArray(0) || !data.IsEntityArray(2) || data.Points(4) == nullptr ||
        !data.IsEntityArray(5) || data.Points(7) == nullptr || data.Reals(8) == nullptr)
    {
        return ResultNormal;
    }
    const QStringList cutting = ResolveEntityVariableNames(data.Item(0), data.Item(1));
    const QStringList removed = ResolveEntityVariableNames(data.Item(2), data.Item(3));

    const auto& handles = data.Item(5).GetHandleArray();
    const auto& classes = data.Item(6).GetClassArray();
    TrimSearch search;
    std::vector<ObjectPair> newObjects;
    for (std::size_t i = 0; i < handles.size() && i < classes.size(); ++i)
    {
        // A trim can also turn an entity into one of another class, which keeps its handle.
        const ObjectPair* known = FindKnownObject(handles[i]);
        if (known != nullptr && known->objectClass == classes[i])
        {
            continue;
        }
        std::array<double, reals> properties{};
        for (std::size_t k = 0; k < reals; ++k)
        {
            properties.at(k) = (*data.Reals(8))[reals * i + k];
        }
        search.selectionPoints.push_back((*data.Points(7))[i]);
        search.properties.push_back(properties);
        newObjects.push_back(RegisterObject(handles[i], classes[i]));
        if (const std::optional<TrimSearch::Shape> shape = ShapeOf(classes[i]))
        {
            AddAssignment(search, *shape, {search.Count() - 1, newObjects.back().number});
        }
    }

    QString converted;
    if (!newObjects.empty())
    {
        // The new variables must outlive the block in which the search runs.
        converted += WriteBlockEnd();
        for (const ObjectPair& object : newObjects)
        {
            converted += DeclareVariable(object);
        }
        converted += WriteBlockBegin();
    }
    converted += WriteTrimEntities(cutting, removed, *data.Points(4), search);
    text = converted;
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertExtend(const CZtCustomAction& action, QString& text)
{
    constexpr std::int32_t itemCount = 5;
    if (action.GetActionId() != 7)
    {
        return ResultError;
    }
    const ActionData data(action);
    if (data.Count() == itemCount && data.IsEntityArray(0) && data.IsEntityArray(2) && data.Points(4) != nullptr)
    {
        text = WriteExtendEntities(ResolveEntityVariableNames(data.Item(0), data.Item(1)),
                                   ResolveEntityVariableNames(data.Item(2), data.Item(3)), *data.Points(4));
    }
    return ResultNormal;
}
