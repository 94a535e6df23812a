// C++ COM texts of enumerated settings of drawing objects; the logic stands in objects/.
#include "backends/text/enumerations.h"
#include "backends/cppcom/object.h"

QString CZtConverterKVAPIObjectCPPCOM::WriteSetEnumProperty(const QString& variable, kv::EnumKind kind,
                                                            const QString& word, const QString& displayWord)
{
    return Statement("%1%3->put_%4( %5 );%2", variable, word, kv::EnumConstant(kv::EnumForm::Bare, kind, displayWord));
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetEnumByNumber(const QString& variable, kv::EnumKind kind,
                                                            const QString& word, std::int32_t number)
{
    return Statement("%1%3->put_%4( %5 );%2", variable, word, kv::EnumConstant(kv::EnumForm::Bare, kind, number));
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetEnumFlag(const QString& variable, kv::EnumKind kind, const QString& word,
                                                        bool flag)
{
    return Statement("%1%3->put_%4( %5 );%2", variable, word, kv::EnumConstantOfFlag(kv::EnumForm::Bare, kind, flag));
}
