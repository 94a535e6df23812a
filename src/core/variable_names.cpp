// Variables of objects: from class and number to the name, and from handles to names.
#include "core/variable_names.h"

#include "core/converter_impl.h"
#include "core/type_table.h"

#include <QtCore/QHash>

#include <algorithm>
#include <array>
#include <charconv>

namespace
{
QString MakeStem(QString stem, bool isPointerType, PlainPointerMark mark)
{
    if (isPointerType)
    {
        stem.remove(QLatin1String("_ptr"));
        if (mark == PlainPointerMark::Removed)
        {
            stem.remove(QLatin1String("_c*"));
        }
    }
    return stem.toLower();
}
} // namespace

QString VariableStem(const QString& typeName, PlainPointerMark mark)
{
    // There are a few type names, and each object of a journal asks for one several times.
    struct Stems
    {
        QHash<QString, QString> all;
        QString lastType;
        QString lastStem;
    };
    static std::array<Stems, 3> known;
    const bool isPointerType = CurrentLanguage() == MacroLanguage::CppApi;
    auto& [all, lastType, lastStem] = known.at(!isPointerType ? 0 : mark == PlainPointerMark::Removed ? 1 : 2);
    if (!lastType.isSharedWith(typeName))
    {
        auto found = all.constFind(typeName);
        if (found == all.constEnd())
        {
            found = all.insert(typeName, MakeStem(typeName, isPointerType, mark));
        }
        lastType = typeName;
        lastStem = *found;
    }
    return lastStem;
}

QString VariableName(const QString& typeName, std::int32_t number, PlainPointerMark mark)
{
    const QString stem = VariableStem(typeName, mark);
    std::array<char, 16> digits{};
    const char* end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    QString name(stem.size() + static_cast<int>(end - digits.data()), Qt::Uninitialized);
    QChar* const behindStem = std::ranges::copy(stem, name.begin()).out;
    std::transform(digits.cbegin(), static_cast<const char*>(end), behindStem,
                   [](char digit) { return QLatin1Char(digit); });
    return name;
}

const QString* CZtConverterKVAPIImpl::VariableType(const OdRxClass* objectClass)
{
    const kv::ObjectType* row = kv::FactsOf(objectClass).type;
    if (row == nullptr)
    {
        return nullptr;
    }
    return CurrentLanguage() == MacroLanguage::CppApi ? &row->variableType : &row->word;
}

ResultCode CZtConverterKVAPIImpl::GetObjectTypeNames(const OdRxClass* objectClass, QString& name, QString& type)
{
    const QString* variableType = VariableType(objectClass);
    if (variableType == nullptr)
    {
        return ResultError;
    }
    name = *variableType;
    type = kv::FactsOf(objectClass).type->constant;
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
