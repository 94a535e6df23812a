// C# texts of groups and of erasing; the logic stands in core/groups.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"

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
