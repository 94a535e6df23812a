// C++ API texts of what a layer looks like in one viewport; the logic stands in objects/layers.cpp.
#include "backends/cpp/object.h"
#include "backends/text/enumerations.h"

QString CZtConverterKVAPIObjectCPP::WriteSetFrozenInViewport(const QString& variable, const QString& word, bool frozen)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1kvViewport_ptr viewport%3;%2%1kvSheet->GetActiveViewport( &viewport%3 );%2", number);
    text += Statement("%1%3->%4( %5, viewport%6 );%2", variable, word, FlagWord(frozen), number);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetColorInViewport(const QString& variable, const QString& word,
                                                            const OdCmColor& color)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1kvViewport_ptr viewport%3;%2%1kvSheet->GetActiveViewport( &viewport%3 );%2", number);
    text += color.colorMethod() != OdCmColor::Method::ByColor
                ? Statement("%1kvColor_ptr kvColor%3;%2%1m_pKvApp->GetColorByIndex( %4, &kvColor%3 );%2", number,
                            color.colorIndex())
                : Statement("%1kvColor_ptr kvColor%3;%2%1m_pKvApp->GetRGBColor( %4, %5, %6, &kvColor%3 );%2", number,
                            int{color.red()}, int{color.green()}, int{color.blue()});
    text += Statement("%1%3->%4( kvColor%5, viewport%5 );%2", variable, word, number);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetLineWeightInViewport(const QString& variable, const QString& word,
                                                                 std::int32_t weight)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1kvViewport_ptr viewport%3;%2%1kvSheet->GetActiveViewport( &viewport%3 );%2", number);
    text += Statement("%1%3->%4( %6, viewport%5 );%2", variable, word, number,
                      kv::EntityLineWeight(kv::EnumForm::Bare, weight));
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetLineStyleInViewport(const QString& variable, const QString& word,
                                                                const QString& lineStyle)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1kvViewport_ptr viewport%3;%2%1kvSheet->GetActiveViewport( &viewport%3 );%2", number);
    text += Statement("%1%3->%4( L\"%6\", viewport%5 );%2", variable, word, number, lineStyle);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetPrintStyleInViewport(const QString& variable, const QString& word,
                                                                 const QString& value, bool quoted)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1kvViewport_ptr viewport%3;%2%1kvSheet->GetActiveViewport( &viewport%3 );%2", number);
    text += quoted ? Statement("%1%3->%4( L\"%6\", viewport%5 );%2", variable, word, number, value)
                   : Statement("%1%3->%4( %6, viewport%5 );%2", variable, word, number, value);
    return text;
}
