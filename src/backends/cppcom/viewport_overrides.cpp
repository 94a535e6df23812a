// C++ COM texts of what a layer looks like in one viewport; the logic stands in objects/layers.cpp.
#include "backends/cppcom/color_expression.h"
#include "backends/cppcom/object.h"
#include "backends/text/enumerations.h"

QString CZtConverterKVAPIObjectCPPCOM::WriteSetFrozenInViewport(const QString& variable, const QString& word,
                                                                bool frozen)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1IViewportPtr viewport%3 = kvSheet->GetActiveViewport();%2", number);
    text += Statement("%1%3->%4( %5, viewport%6 );%2", variable, word, FlagWord(frozen), number);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetColorInViewport(const QString& variable, const QString& word,
                                                               const OdCmColor& color)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1IViewportPtr viewport%3 = kvSheet->GetActiveViewport();%2", number);
    text += Statement("%1%3->%4( %6, viewport%5 );%2", variable, word, number, ColorExpression(color));
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetLineWeightInViewport(const QString& variable, const QString& word,
                                                                    std::int32_t weight)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1IViewportPtr viewport%3 = kvSheet->GetActiveViewport();%2", number);
    text += Statement("%1%3->%4( %6, viewport%5 );%2", variable, word, number,
                      kv::EntityLineWeight(kv::EnumForm::Bare, weight));
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetLineStyleInViewport(const QString& variable, const QString& word,
                                                                   const QString& lineStyle)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1IViewportPtr viewport%3 = kvSheet->GetActiveViewport();%2", number);
    text += Statement("%1%3->%4( L\"%6\", viewport%5 );%2", variable, word, number, lineStyle);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetPrintStyleInViewport(const QString& variable, const QString& word,
                                                                    const QString& value, bool quoted)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1IViewportPtr viewport%3 = kvSheet->GetActiveViewport();%2", number);
    text += quoted ? Statement("%1%3->%4( L\"%6\", viewport%5 );%2", variable, word, number, value)
                   : Statement("%1%3->%4( %6, viewport%5 );%2", variable, word, number, value);
    return text;
}
