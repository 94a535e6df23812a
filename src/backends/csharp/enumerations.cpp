// C# texts of enumerated settings of drawing objects; the logic stands in objects/.
#include "backends/text/enumerations.h"
#include "backends/csharp/object.h"

QString CZtConverterKVAPIObjectCSharp::WriteSetEnumProperty(const QString& variable, kv::EnumKind kind,
                                                            const QString& word, const QString& displayWord)
{
    return Statement("%1%3.%4 = %5;%2", variable, word, kv::EnumConstant(kv::EnumForm::Qualified, kind, displayWord));
}

QString CZtConverterKVAPIObjectCSharp::WriteSetEnumByNumber(const QString& variable, kv::EnumKind kind,
                                                            const QString& word, std::int32_t number)
{
    return Statement("%1%3.%4 = %5;%2", variable, word, kv::EnumConstant(kv::EnumForm::Qualified, kind, number));
}

QString CZtConverterKVAPIObjectCSharp::WriteSetEnumFlag(const QString& variable, kv::EnumKind kind, const QString& word,
                                                        bool flag)
{
    return Statement("%1%3.%4 = %5;%2", variable, word, kv::EnumConstantOfFlag(kv::EnumForm::Qualified, kind, flag));
}
