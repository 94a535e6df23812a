// Entities of a group, and entities that are erased.
#include "core/action_data.h"
#include "core/converter_impl.h"
#include "host/db/text.h"
#include "host/kernel/services.h"
#include "objects/object_converter.h"

// The variable of the group of a name; empty for a group that the macro didn't create.
QString CZtConverterKVAPIImpl::GroupVariable(const QString& name)
{
    CZtDocument* document = ACTIVE_DOCUMENT();
    if (document == nullptr)
    {
        return {};
    }
    const OdDbObjectId group = document->GetZtDatabase()->getGroupId(name);
    QString variable;
    if (!group.isNull() && FindKnownObject(group.getHandle()) != nullptr)
    {
        static_cast<void>(ObjectConverter().GetObjectByHandle(group.getHandle(), OdDbGroup::desc(), variable));
    }
    return variable;
}

ResultCode CZtConverterKVAPIImpl::ConvertAddToGroup(const CZtCustomAction& action, QString& text)
{
    return ConvertGroup(action, 35, &CZtConverterKVAPIImpl::WriteAddEntitiesToGroup, text);
}

ResultCode CZtConverterKVAPIImpl::ConvertRemoveFromGroup(const CZtCustomAction& action, QString& text)
{
    return ConvertGroup(action, 36, &CZtConverterKVAPIImpl::WriteRemoveEntitiesFromGroup, text);
}

ResultCode CZtConverterKVAPIImpl::ConvertGroup(const CZtCustomAction& action, std::int32_t id, GroupWriter write,
                                               QString& text)
{
    if (action.GetActionId() != id)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<QString> name = data.Text(2);
    if (!data.IsEntityArray(0) || !name)
    {
        return ResultNormal;
    }
    if (const QString group = GroupVariable(*name); !group.isEmpty())
    {
        text += (this->*write)(ResolveEntityVariableNames(data.Item(0), data.Item(1)), group);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertErase(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 17)
    {
        return ResultError;
    }
    const ActionData data(action);
    if (!data.IsEntityArray(0))
    {
        return ResultNormal;
    }
    const auto& handles = data.Item(0).GetHandleArray();
    const auto& classes = data.Item(1).GetClassArray();
    QString lookups;
    QStringList names;
    for (std::size_t i = 0; i < handles.size() && i < classes.size(); ++i)
    {
        QString name;
        QString type;
        if (GetObjectTypeNames(classes[i], name, type) != ResultNormal)
        {
            continue;
        }
        const OdDbObjectId leader = classes[i] == OdDbMText::desc() ? FindAttachedLeader(handles[i]) : OdDbObjectId();
        QString variable;
        if (leader.isNull())
        {
            lookups += ObjectConverter().GetObjectByHandle(handles[i], classes[i], variable);
        }
        else
        {
            // A note that belongs to a leader is reached through it.
            QString leaderVariable;
            lookups += ObjectConverter().GetObjectByHandle(leader.getHandle(), OdDbLeader::desc(), leaderVariable);
            static_cast<void>(ObjectConverter().GetObjectByHandle(handles[i], classes[i], variable));
            lookups += ObjectConverter().WriteGetNoteAnnotation(leaderVariable, variable);
        }
        names.append(variable);
    }
    text += lookups;
    text += WriteEraseEntity(names);
    return ResultNormal;
}
