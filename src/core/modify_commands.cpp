// Mirror, stretch, copy, move, rotate and scale.
#include "core/action_data.h"
#include "core/converter_impl.h"

ResultCode CZtConverterKVAPIImpl::ConvertMirror(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 0)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<OdGePoint3d> first = data.Point(2);
    const std::optional<OdGePoint3d> second = data.Point(3);
    const std::optional<bool> flag = data.Flag(4);
    if (data.IsEntityArray(0) && first && second && flag)
    {
        text = WriteMirrorEntities(ResolveEntityNames(data.Item(0), data.Item(1)), *first, *second, *flag);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertStretch(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 1)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<OdGePoint3d> start = data.Point(2);
    const std::optional<OdGePoint3d> end = data.Point(3);
    const std::optional<OdGeVector3d> displacement = data.Vector(4);
    if (data.IsEntityArray(0) && start && end && displacement)
    {
        text = WriteStretchEntities(ResolveEntityNames(data.Item(0), data.Item(1)), *start, *end, *displacement);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertCopy(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 2)
    {
        return ResultError;
    }
    const ActionData data(action);
    if (!data.IsEntityArray(0))
    {
        return ResultNormal;
    }
    const EntityArray entities = ResolveEntityNames(data.Item(0), data.Item(1));
    QString copies;
    for (std::int32_t i = 2; i < data.Count(); ++i)
    {
        const std::optional<OdGeVector3d> displacement = data.Vector(i);
        if (!displacement)
        {
            return ResultNormal;
        }
        // All copies share the arrays of the first.
        copies += WriteCopyEntities(entities, *displacement, i == 2);
    }
    text = copies;
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertMove(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 3)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<OdGeVector3d> displacement = data.Vector(2);
    if (data.IsEntityArray(0) && displacement)
    {
        text = WriteMoveEntities(ResolveEntityNames(data.Item(0), data.Item(1)), *displacement, true);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertRotate(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 4)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<OdGePoint3d> base = data.Point(2);
    const std::optional<double> angle = data.Real(3);
    if (data.IsEntityArray(0) && base && angle)
    {
        text = WriteRotateEntities(ResolveEntityNames(data.Item(0), data.Item(1)), *base, *angle);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertScale(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 5)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<OdGePoint3d> base = data.Point(2);
    const std::optional<double> factor = data.Real(3);
    if (data.IsEntityArray(0) && base && factor)
    {
        text = WriteScaleEntities(ResolveEntityNames(data.Item(0), data.Item(1)), *base, *factor);
    }
    return ResultNormal;
}
