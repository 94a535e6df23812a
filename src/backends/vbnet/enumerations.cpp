// VB.NET texts of enumerated settings of drawing objects; the logic stands in objects/.
#include "backends/text/enumerations.h"
#include "backends/vbnet/object.h"

QString CZtConverterKVAPIObjectVbNet::WriteSetEnumProperty(const QString& variable, kv::EnumKind kind,
                                                           const QString& word, const QString& displayWord)
{
    return Statement("%1%3.%4 = %5%2", variable, word, kv::EnumConstant(kv::EnumForm::Morvane, kind, displayWord));
}

QString CZtConverterKVAPIObjectVbNet::WriteSetEnumByNumber(const QString& variable, kv::EnumKind kind,
                                                           const QString& word, std::int32_t number)
{
    return Statement("%1%3.%4 = %5%2", variable, word, kv::EnumConstant(kv::EnumForm::Morvane, kind, number));
}

QString CZtConverterKVAPIObjectVbNet::WriteSetEnumFlag(const QString& variable, kv::EnumKind kind, const QString& word,
                                                       bool flag)
{
    return Statement("%1%3.%4 = %5%2", variable, word, kv::EnumConstantOfFlag(kv::EnumForm::Morvane, kind, flag));
}
