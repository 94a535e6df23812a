// C++ COM texts of groups and of erasing; the logic stands in core/groups.cpp.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"
#include "backends/cppcom/object.h"
#include "backends/cppcom/safe_array.h"

QString CZtConverterKVAPICPPCOM::WriteAddEntitiesToGroup(const QStringList& names, const QString& group)
{
    const int number = ComCounters::OfProcess().WriteAddEntitiesToGroup++;
    const kv::Indent deeper{Counters().IndentLevel + 1};
    const SafeArrayText entities(SafeArrayText::Kind::Entities, "entities", number);
    QString text = entities.Declare(CurrentIndent(), names.size());
    text += Line("%1VARIANT_BOOL bPart%2;\n", number);
    text += Line("%1{\n");
    text += entities.Begin(deeper);
    for (const QString& name : names)
    {
        text += kv::Fill("%1bPart%2=%3->HasEntity(%4);\n"
                         "%1if ( !bPart%2 )\n"
                         "%1{\n",
                         deeper, number, group, name);
        text += entities.Element({deeper.level + 1}, name);
        text += kv::Fill("%1}\n", deeper);
    }
    text += Line("%1}\n");
    text += kv::LineEnd();
    text += Line("%1%3->AddEntities(entities%2);\n", number, group);
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteRemoveEntitiesFromGroup(const QStringList& names, const QString& group)
{
    constexpr int number = 0; // never grows; the format's
    const SafeArrayText entities(SafeArrayText::Kind::Entities, "removeObject", number);
    QString text = entities.Declare(CurrentIndent(), names.size());
    text += entities.Block(CurrentIndent(), names);
    text += kv::LineEnd();
    text += Line("%1%3->RemoveEntities(removeObject%2);\n", number, group);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteEraseEntity(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2->put_Erased( true );\n", name);
    }
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteCreateGroup(const QString& variable, const QString& name, bool anonymous,
                                                        const QString& description, const QStringList& entities)
{
    const std::int32_t number = NextLocalNumber();
    const SafeArrayText array(SafeArrayText::Kind::Entities, "entities", number);
    QString text = array.Declare(CurrentIndent(), entities.size());
    text += array.Elements(CurrentIndent(), entities);
    text += Statement("%1%6 = kvDoc->CreateGroup( L\"%3\", %4, L\"%5\", entities%7 );%2", name, FlagWord(anonymous),
                      description, variable, number);
    return text;
}
