// VBA texts of groups and of erasing; the logic stands in core/groups.cpp.
#include "backends/vba/converter.h"
#include "backends/vba/counters.h"
#include "backends/vba/object.h"

QString CZtConverterKVAPIVba::WriteAddEntitiesToGroup(const QStringList& names, const QString& group)
{
    const int number = VbaCounters::OfProcess().WriteAddEntitiesToGroup++;
    QString text;
    for (const QString& name : names)
    {
        // The frame of C and the line of VB.NET are the format's.
        text += Line("%1if ( !%3.HasEntity(%4) )\n"
                     "%1{\n"
                     "%1    Dim entities%2(0) As Object\n"
                     "%1    entities%2 = New DispatchWrapper(0) {}\n"
                     "%1    Set entities%2(0) = %4\n"
                     "%1    %3.AddEntities(entities%2)\n"
                     "%1}\n",
                     number, group, name);
    }
    return text;
}

QString CZtConverterKVAPIVba::WriteRemoveEntitiesFromGroup(const QStringList& names, const QString& group)
{
    constexpr int number = 0; // never grows; the format's
    QString text = DeclareEntities("removeObject", number, names.size());
    text += EntityElements("removeObject", number, names);
    text += kv::LineEnd();
    text += Line("%1%3.RemoveEntities removeObject%2\n", number, group);
    return text;
}

QString CZtConverterKVAPIVba::WriteEraseEntity(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Erased = True\n", name);
    }
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteCreateGroup(const QString& variable, const QString& name, bool anonymous,
                                                     const QString& description, const QStringList& entities)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclareEntities("entities", number, entities.size());
    text += EntityElements("entities", number, entities);
    text += Statement("%1Set %6 = kvDoc.CreateGroup( \"%3\", %4, \"%5\", entities%7 )%2", name, FlagWord(anonymous),
                      description, variable, number);
    return text;
}
