// Groups of entities.
#include "host/db/symbols.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

QString CZtConverterKVAPIObject::CreateGroup(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const auto group = Opened<OdDbGroup>(handle);
    const QString name = TextOf(properties.TakeProperty("Name", &consumed));
    const QString description = TextOf(properties.TakeProperty("Description", &consumed));
    const CZtVariant members = properties.TakeProperty("AllEntities");
    QString text;
    QStringList names;
    if (const CZtVariantCollection* list = members.GetCollection(); list != nullptr && ACTIVE_DOCUMENT() != nullptr)
    {
        for (const CZtVariantCollectionElement& element : list->GetCollectionDataForRead())
        {
            // The handle is the tag, not the value.
            const OdDbHandle member(element.GetTag()->GetString().text());
            text += MemberName(ACTIVE_DOCUMENT()->GetZtDatabase()->getOdDbObjectId(member), names);
        }
    }
    text += WriteCreateGroup(variable, name, group && group->isAnonymous(), description, names);
    if (const CZtVariant selectable = properties.TakeProperty("SelectableEntities", &consumed);
        !IsWord(words_, selectable, "YES", Qt::CaseInsensitive))
    {
        text += WriteSetBoolProperty(variable, QStringLiteral("Selectable"), false);
    }
    return text;
}

QString CZtConverterKVAPIObject::MemberName(const OdDbObjectId& id, QStringList& names)
{
    if (const std::optional<QString> known = createdObjects_.FindName(id))
    {
        names.append(*known);
        return {};
    }
    const OdDbObjectPtr object = id.openObject();
    QString variable;
    QString text = object ? GetObjectByHandle(id.getHandle(), object->isA(), variable) : QString();
    if (!variable.isEmpty())
    {
        names.append(variable);
    }
    return text;
}

QString CZtConverterKVAPIObject::ConvertGroup(const PropertyPass& pass)
{
    if (pass.created)
    {
        return {};
    }
    QString text;
    if (const CZtVariant name = pass.properties.TakeProperty("Name"); !name.IsNull())
    {
        text += WriteRenameEntity(pass.variable, TextOf(name));
    }
    text += ChangeText(pass, "Description", "Description");
    text += ChangeWord(pass, "SelectableEntities", "Selectable", "YES");
    return text;
}
