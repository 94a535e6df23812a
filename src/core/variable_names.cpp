// Variables of objects: from class and number to the name, and from handles to names.
#include "core/variable_names.h"

#include "core/converter_impl.h"
#include "core/type_table.h"

namespace
{
// The type of a variable of the C++ API. Two of its classes have no smart pointer.
QString PointerType(const QString& word)
{
    QString type = QStringLiteral("kv%1_ptr").arg(word);
    if (type == QLatin1String("kvRegion_ptr"))
    {
        type = QStringLiteral("kvRegion_c*");
    }
    else if (type == QLatin1String("kvViewTile_ptr"))
    {
        type = QStringLiteral("kvViewTile_c*");
    }
    return type;
}
} // namespace

QString VariableStem(const QString& typeName, PlainPointerMark mark)
{
    QString stem = typeName;
    if (CurrentLanguage() == MacroLanguage::CppApi)
    {
        stem.remove(QLatin1String("_ptr"));
        if (mark == PlainPointerMark::Removed)
        {
            stem.remove(QLatin1String("_c*"));
        }
    }
    return stem.toLower();
}

QString VariableName(const QString& typeName, std::int32_t number, PlainPointerMark mark)
{
    return VariableStem(typeName, mark) + QString::number(number);
}

ResultCode CZtConverterKVAPIImpl::GetObjectTypeNames(const OdRxClass* objectClass, QString& name, QString& type)
{
    const kv::ObjectType* row = objectClass != nullptr ? kv::FindObjectType(objectClass->name()) : nullptr;
    if (row == nullptr)
    {
        return ResultError;
    }
    name = row->word;
    type = row->constant;
    if (CurrentLanguage() == MacroLanguage::CppApi)
    {
        name = PointerType(name);
    }
    return ResultNormal;
}

EntityArray CZtConverterKVAPIImpl::NameEntities(const std::vector<OdDbHandle>& handles,
                                                const std::vector<const OdRxClass*>& classes,
                                                PlainPointerMark mark) const
{
    EntityArray entities;
    for (std::size_t i = 0; i < handles.size(); ++i)
    {
        QString name;
        QString type;
        const ObjectPair* known = FindKnownObject(handles[i]);
        const OdRxClass* objectClass = i < classes.size() ? classes[i] : nullptr;
        if (known != nullptr && GetObjectTypeNames(objectClass, name, type) == ResultNormal)
        {
            name = VariableName(name, known->number, mark);
        }
        entities.names.append(name);
        entities.types.append(type);
        entities.handles.append(handles[i].ascii());
    }
    return entities;
}

EntityArray CZtConverterKVAPIImpl::ResolveEntityNames(const CZtCustomActionData& handleData,
                                                      const CZtCustomActionData& classData) const
{
    return NameEntities(handleData.GetHandleArray(), classData.GetClassArray(), PlainPointerMark::Removed);
}

QStringList CZtConverterKVAPIImpl::ResolveEntityVariableNames(const CZtCustomActionData& handleData,
                                                              const CZtCustomActionData& classData) const
{
    return ResolveEntityNames(handleData, classData).names;
}

QString CZtConverterKVAPIImpl::ResolveObjectVariableName(OdDbHandle handle, const OdRxClass* objectClass) const
{
    return NameEntities({handle}, {objectClass}, PlainPointerMark::Kept).names.front();
}
