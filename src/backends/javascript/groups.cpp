// JavaScript texts of groups and of erasing; the logic stands in core/groups.cpp.
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"
#include "backends/javascript/object.h"

QString CZtConverterKVAPIJavaScript::WriteAddEntitiesToGroup(const QStringList& names, const QString& group)
{
    const int number = JavaScriptCounters::OfProcess().WriteAddEntitiesToGroup++;
    QString text = DeclareArray(kv::Fill("entities%1", number), names.size());
    for (int i = 0; i < names.size(); ++i)
    {
        text += Line("%1var bPart%2 = %3.HasEntity(%4);\n"
                     "%1if (!bPart%2)\n"
                     "%1{\n"
                     "%1    entities%2[%5] = %4;\n"
                     "%1}\n",
                     number, group, names.at(i), i);
    }
    text += kv::LineEnd();
    text += Line("%1%3.AddEntities(entities%2);\n", number, group);
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteRemoveEntitiesFromGroup(const QStringList& names, const QString& group)
{
    const QString array = QStringLiteral("removeObject0"); // the number never grows; the format's
    QString text = DeclareArray(array, names.size());
    text += AssignElements(array, names);
    text += kv::LineEnd();
    text += Line("%1%3.RemoveEntities(%2);\n", array, group);
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteEraseEntity(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.put_Erased(true);\n", name);
    }
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteCreateGroup(const QString& variable, const QString& name,
                                                            bool anonymous, const QString& description,
                                                            const QStringList& entities)
{
    const std::int32_t number = NextLocalNumber();
    QString elements;
    for (int i = 0; i < entities.size(); ++i)
    {
        elements += Statement("%1entities%5[%3] = %4;%2", i, entities.at(i), number);
    }
    return Statement(
        "%1var entities%9 = new Array(%3);%2%4%1var %8 = mDoc.CreateGroup(\"%5\", %6, \"%7\", entities%9);%2",
        entities.size(), elements, name, FlagWord(anonymous), description, variable, number);
}
