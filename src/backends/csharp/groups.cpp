// C# texts of groups and of erasing; the logic stands in core/groups.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"
#include "backends/csharp/object.h"

QString CZtConverterKVAPICSharp::WriteAddEntitiesToGroup(const QStringList& names, const QString& group)
{
    const int number = CSharpCounters::OfProcess().WriteAddEntitiesToGroup++;
    QString text = Line("%1DispatchWrapper[] entities%2 = new DispatchWrapper[%3];\n", number, names.size());
    text += Line("%1bool bPart%2;\n", number);
    for (int i = 0; i < names.size(); ++i)
    {
        text += Line("%1bPart%2 = %3.HasEntity(%4);\n"
                     "%1if ( !bPart%2 )\n"
                     "%1{\n"
                     "%1    entities%2[%5] = new DispatchWrapper(%4);\n"
                     "%1}\n",
                     number, group, names.at(i), i);
    }
    text += kv::LineEnd();
    text += Line("%1%3.AddEntities(entities%2);\n", number, group);
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICSharp::WriteRemoveEntitiesFromGroup(const QStringList& names, const QString& group)
{
    constexpr int number = 0; // never grows; the format's
    QString text = Line("%1DispatchWrapper[] removeObject%2 = new DispatchWrapper[%3];\n", number, names.size());
    text += EntityElements("%1removeObject%2[%3] = new DispatchWrapper(%4);\n", number, names);
    text += kv::LineEnd();
    text += Line("%1%3.RemoveEntities(removeObject%2);\n", number, group);
    return text;
}

QString CZtConverterKVAPICSharp::WriteEraseEntity(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Erased = true;\n", name);
    }
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteCreateGroup(const QString& variable, const QString& name, bool anonymous,
                                                        const QString& description, const QStringList& entities)
{
    const std::int32_t number = NextLocalNumber();
    QString elements;
    for (int i = 0; i < entities.size(); ++i)
    {
        elements += Statement("%1entities%5[%3] = new DispatchWrapper(%4);%2", i, entities.at(i), number);
    }
    return Statement(
        "%1DispatchWrapper[] entities%9 = new DispatchWrapper[%3];%2%4%1%8 = kvDoc.CreateGroup( \"%5\", %6, \"%7\", entities%9 );%2",
        entities.size(), elements, name, FlagWord(anonymous), description, variable, number);
}
