// JavaScript texts of what a layer looks like in one viewport; the logic stands in objects/layers.cpp.
#include "backends/javascript/object.h"
#include "backends/text/enumerations.h"

namespace
{

// The name of the application isn't the page's; the format's.
QString ViewportColor(const OdCmColor& color)
{
    return color.colorMethod() != OdCmColor::Method::ByColor
               ? kv::Fill("kvApp.GetColorByIndex( %1 )", color.colorIndex())
               : kv::Fill("kvApp.GetRGBColor( %1, %2, %3 )", int{color.red()}, int{color.green()}, int{color.blue()});
}

} // namespace

QString CZtConverterKVAPIObjectJavaScript::WriteSetFrozenInViewport(const QString& variable, const QString& word,
                                                                    bool frozen)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1var viewport%3 = mSheet.GetActiveViewport();%2", number);
    text += Statement("%1%3.%4(%5, viewport%6);%2", variable, word, FlagWord(frozen), number);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetColorInViewport(const QString& variable, const QString& word,
                                                                   const OdCmColor& color)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1var viewport%3 = mSheet.GetActiveViewport();%2", number);
    text += Statement("%1%3.%4(%6, viewport%5);%2", variable, word, number, ViewportColor(color));
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetLineWeightInViewport(const QString& variable, const QString& word,
                                                                        std::int32_t weight)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1var viewport%3 = mSheet.GetActiveViewport();%2", number);
    text += Statement("%1%3.%4(\"%6\", viewport%5);%2", variable, word, number,
                      kv::EntityLineWeight(kv::EnumForm::Bare, weight));
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetLineStyleInViewport(const QString& variable, const QString& word,
                                                                       const QString& lineStyle)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1var viewport%3 = mSheet.GetActiveViewport();%2", number);
    text += Statement("%1%3.%4(\"%6\", viewport%5);%2", variable, word, number, lineStyle);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetPrintStyleInViewport(const QString& variable, const QString& word,
                                                                        const QString& value, bool quoted)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1var viewport%3 = mSheet.GetActiveViewport();%2", number);
    text += quoted ? Statement("%1%3.%4(\"%6\", viewport%5);%2", variable, word, number, value)
                   : Statement("%1%3.%4(%6, viewport%5);%2", variable, word, number, value);
    return text;
}
