// C++ API texts of groups and of erasing; the logic stands in core/groups.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"
#include "backends/cpp/object.h"

QString CZtConverterKVAPICPP::WriteAddEntitiesToGroup(const QStringList& names, const QString& group)
{
    const int number = CppCounters::OfProcess().WriteAddEntitiesToGroup++;
    QString text = Line("%1kvObjectPtrArray entities%2;\n", number);
    text += Line("%1bool bPart%2;\n", number);
    for (const QString& name : names)
    {
        text += Line("%1%3->HasEntity(%4, &bPart%2);\n"
                     "%1if ( !bPart%2 )\n"
                     "%1{\n"
                     "%1    entities%2.add(%4);\n"
                     "%1}\n",
                     number, group, name);
    }
    text += kv::LineEnd();
    text += Line("%1%3->AddEntities(entities%2);\n", number, group);
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICPP::WriteRemoveEntitiesFromGroup(const QStringList& names, const QString& group)
{
    constexpr int number = 0; // never grows; the format's
    QString text = Line("%1kvObjectPtrArray removeObject%2;\n", number);
    for (const QString& name : names)
    {
        text += Line("%1removeObject%2.add(%3);\n", number, name);
    }
    text += kv::LineEnd();
    text += Line("%1%3->RemoveEntities(removeObject%2);\n", number, group);
    return text;
}

QString CZtConverterKVAPICPP::WriteEraseEntity(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2->put_Erased( true );\n", name);
    }
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteCreateGroup(const QString& variable, const QString& name, bool anonymous,
                                                     const QString& description, const QStringList& entities)
{
    const std::int32_t number = NextLocalNumber();
    QString elements;
    for (const QString& entity : entities)
    {
        elements += Statement("%1entities%4.add(%3);%2", entity, number);
    }
    return Statement(
        "%1kvObjectPtrArray entities%8;%2%3%1kvDoc->CreateGroup( L\"%4\", %5, L\"%6\", entities%8, &%7 );%2", elements,
        name, FlagWord(anonymous), description, variable, number);
}
