// VBA texts of what a layer looks like in one viewport; the logic stands in objects/layers.cpp.
#include "backends/text/color_expression.h"
#include "backends/text/enumerations.h"
#include "backends/vba/object.h"

QString CZtConverterKVAPIObjectVba::WriteSetFrozenInViewport(const QString& variable, const QString& word, bool frozen)
{
    const std::int32_t number = NextLocalNumber();
    QString text =
        Statement("%1Dim viewport%3 As Morvane.Viewport%2%1Set viewport%3 = kvSheet.GetActiveViewport()%2", number);
    text += Statement("%1%3.%4 %5, viewport%6%2", variable, word, FlagWord(frozen), number);
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteSetColorInViewport(const QString& variable, const QString& word,
                                                            const OdCmColor& color)
{
    const std::int32_t number = NextLocalNumber();
    QString text =
        Statement("%1Dim viewport%3 As Morvane.Viewport%2%1Set viewport%3 = kvSheet.GetActiveViewport()%2", number);
    text += Statement("%1%3.%4 %6, viewport%5%2", variable, word, number, kv::ColorExpression(color));
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteSetLineWeightInViewport(const QString& variable, const QString& word,
                                                                 std::int32_t weight)
{
    const std::int32_t number = NextLocalNumber();
    QString text =
        Statement("%1Dim viewport%3 As Morvane.Viewport%2%1Set viewport%3 = kvSheet.GetActiveViewport()%2", number);
    text += Statement("%1%3.%4 %6, viewport%5%2", variable, word, number,
                      kv::EntityLineWeight(kv::EnumForm::Morvane, weight));
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteSetLineStyleInViewport(const QString& variable, const QString& word,
                                                                const QString& lineStyle)
{
    const std::int32_t number = NextLocalNumber();
    QString text =
        Statement("%1Dim viewport%3 As Morvane.Viewport%2%1Set viewport%3 = kvSheet.GetActiveViewport()%2", number);
    text += Statement("%1%3.%4 \"%6\", viewport%5%2", variable, word, number, lineStyle);
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteSetPrintStyleInViewport(const QString& variable, const QString& word,
                                                                 const QString& value, bool quoted)
{
    const std::int32_t number = NextLocalNumber();
    QString text =
        Statement("%1Dim viewport%3 As Morvane.Viewport%2%1Set viewport%3 = kvSheet.GetActiveViewport()%2", number);
    text += quoted ? Statement("%1%3.%4 \"%6\", viewport%5%2", variable, word, number, value)
                   : Statement("%1%3.%4 %6, viewport%5%2", variable, word, number, value);
    return text;
}
