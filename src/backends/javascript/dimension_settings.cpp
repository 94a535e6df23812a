// JavaScript texts of settings of dimensions and of dimension styles; the logic stands in
// objects/dimension_overrides.cpp and objects/dimension_styles.cpp.
#include "backends/javascript/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteGetDimensionOptions(const QString& variable, const QString& owner,
                                                                    const QString& typeName)
{
    return Statement("%1var %3 = %4.Get%5();%2", variable, owner, typeName);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetArrow(const QString& variable, const QString& setter,
                                                         std::int32_t type, const QString& name)
{
    return Statement("%1%3.%4(\"%5\", \"%6\");%2", variable, setter,
                     kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::DimensionArrowType, type), name);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetStyleArrow(const QString& variable, const QString& setter,
                                                              std::int32_t type, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1var arrowType%3=\"%4\";%2"
                     "%1var arrowName%3 = \"%5\";%2%6.%7(arrowType%3, arrowName%3);%2",
                     number, kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::DimensionArrowType, type), name,
                     variable, setter);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetCenterMark(const QString& variable, const QString& setter,
                                                              const std::optional<std::int32_t>& display,
                                                              const std::optional<double>& size)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1var results%3 = %4.GetCenterMarkDisplay();%2"
                             "%1var CenterMarkDisplay%3 = results%3[0];%2"
                             "%1var markSize%3 = results%3[1];%2",
                             number, variable);
    if (display)
    {
        text += Statement("%1CenterMarkDisplay%3 = \"%4\";%2", number,
                          kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::DimensionCenterMarkDisplay, *display));
    }
    if (size)
    {
        text += Statement("%1markSize%3 = %4;%2", number, Fixed{*size});
    }
    text += Statement("%1%3.%4(CenterMarkDisplay%5, markSize%5);%2", variable, setter, number);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetPointX(const QString& variable, const QString& word, double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1var point%6 = %3.Get%4();%2%1%3.Set%4(%5, point%6.Y, point%6.Z);%2", variable, word,
                     Fixed{value}, number);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetPointY(const QString& variable, const QString& word, double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1var point%6 = %3.Get%4();%2%1%3.Set%4(point%6.X, %5, point%6.Z);%2", variable, word,
                     Fixed{value}, number);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetDimensionScale(const QString& variable, const QString& setter,
                                                                  std::int32_t kind, double scale)
{
    return Statement("%1%3.%4(\"%5\", %6);%2", variable, setter,
                     kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::DimensionScale, kind), Fixed{scale});
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetExtensionLineFixedLength(const QString& variable, bool isFixed,
                                                                            double length)
{
    return Statement("%1%3.SetExtensionLineFixedLength(%4, %5);%2", variable, FlagWord(isFixed), Fixed{length});
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetEnumPair(const QString& variable, const QString& word,
                                                            const QString& constant, double number)
{
    return Statement("%1%3.put_%4(%5, %6);%2", variable, word, constant, Fixed{number});
}

QString CZtConverterKVAPIObjectJavaScript::WriteCreateDimensionStyle(const QString& variable, const QString& name)
{
    ++Counters().LocalNameSequence;
    return Statement(
        "%1var dimStyleName%4 = \"%3\";%2%1var %4 = mDoc.GetDimensionStyleManager().CreateDimensionStyle(dimStyleName%4).DimensionStyle;%2",
        name, variable);
}
