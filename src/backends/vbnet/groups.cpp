// VB.NET texts of groups and of erasing; the logic stands in core/groups.cpp.
#include "backends/vbnet/converter.h"
#include "backends/vbnet/counters.h"
#include "backends/vbnet/object.h"

QString CZtConverterKVAPIVbNet::WriteAddEntitiesToGroup(const QStringList& names, const QString& group)
{
    const int number = VbNetCounters::OfProcess().WriteAddEntitiesToGroup++;
    QString text;
    for (const QString& name : names)
    {
        // The frame of C, and the number where a line should end, are the format's.
        text += Line("%1if ( !%3.HasEntity(%4) )\n"
                     "%1{\n"
                     "%1    Dim entities%2 As DispatchWrapper()%2%1    entities%2 = New DispatchWrapper( 0 ) {}\n"
                     "%1    entities%2(0) = New DispatchWrapper(%4)\n"
                     "%1    %3.AddEntities(entities%2)\n"
                     "%1}\n",
                     number, group, name);
    }
    return text;
}

QString CZtConverterKVAPIVbNet::WriteRemoveEntitiesFromGroup(const QStringList& names, const QString& group)
{
    constexpr int number = 0; // never grows; the format's
    QString text = DeclareEntities("removeObject", number, names.size());
    text += EntityElements("removeObject", number, names);
    text += kv::LineEnd();
    text += Line("%1%3.RemoveEntities(removeObject%2)\n", number, group);
    return text;
}

QString CZtConverterKVAPIVbNet::WriteEraseEntity(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Erased = true\n", name);
    }
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteCreateGroup(const QString& variable, const QString& name, bool anonymous,
                                                       const QString& description, const QStringList& entities)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclareEntities("entities", number, entities.size());
    text += EntityElements("entities", number, entities);
    text += Statement("%1%6 = kvDoc.CreateGroup( \"%3\", %4, \"%5\", entities%7 )%2", name, FlagWord(anonymous),
                      description, variable, number);
    return text;
}
