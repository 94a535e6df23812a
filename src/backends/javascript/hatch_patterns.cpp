// JavaScript texts of what a hatch is filled with; the logic stands in objects/hatch_properties.cpp.
#include "backends/javascript/color_expression.h"
#include "backends/javascript/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteGetHatchPattern(const QString& pattern, const QString& hatch)
{
    return Statement("%1var %3 = %4.GetHatchPattern();%2", pattern, hatch);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetHatchData(const QString& pattern, const HatchData& data)
{
    const std::int32_t number = NextLocalNumber();
    const QString name = kv::Fill("PatternName%1", number);
    const QString angle = kv::Fill("Angle%1", number);
    const QString scale = kv::Fill("Scale%1", number);
    const QString type = kv::Fill("HatchPatternType%1", number);
    const QString spacing = kv::Fill("Spacing%1", number);
    QString text = Statement(
        "%1var results%9 = %3.GetHatchOrSolidData();%2%1var %4 = results%9[0];%2%1var %5 = results%9[1];%2%1var %6 = results%9[2];%2%1var %7 = results%9[3];%2%1var %8 = results%9[4];%2",
        pattern, name, angle, scale, type, spacing, number);
    if (data.name)
    {
        text += Statement("%1%3 = \"%4\";%2", name, *data.name);
    }
    if (data.angle)
    {
        text += Statement("%1%3 = %4;%2", angle, Fixed{*data.angle});
    }
    if (data.scale)
    {
        text += Statement("%1%3 = %4;%2", scale, Fixed{*data.scale});
    }
    if (!data.type.isEmpty())
    {
        text += Statement("%1%3 = \"%4\";%2", type, kv::FormOfConstant(kv::EnumForm::Bare, data.type));
    }
    if (data.spacing)
    {
        text += Statement("%1%3 = %4;%2", spacing, Fixed{*data.spacing});
    }
    text += Statement("%1%3.SetHatchOrSolidData(%4, %5, %6, %7, %8);%2", pattern, name, angle, scale, type, spacing);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetGradientData(const QString& pattern, const GradientData& data)
{
    QString text = Statement(
        "%2%1var gradientData = %3.GetGradientData();%2%1var color1 = gradientData[0];%2%1var color2 = gradientData[1];%2%1var bCentered = gradientData[2];%2%1var gradientAngle = gradientData[3];%2",
        pattern);
    if (data.color1)
    {
        text += Line("%1color1 = %2;", kv::ScriptColor(*data.color1));
    }
    if (data.color2)
    {
        text += Line("%1color2 = %2;", kv::ScriptColor(*data.color2));
    }
    if (data.angle)
    {
        text += Line("%1gradientAngle = %3;", Fixed{*data.angle});
    }
    if (data.centered)
    {
        text += Line("%1bCentered = %3;", FlagWord(*data.centered));
    }
    text += Statement("%2%1%3.SetGradientData(color1, color2, bCentered, gradientAngle);%2", pattern);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetHatchRegionDetection(const QString& pattern, const QString& constant)
{
    return Statement("%2%1%3.put_InternalRegionDetection(\"%4\");%2", pattern,
                     kv::FormOfConstant(kv::EnumForm::Bare, constant));
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetFirstCoordinate(const QString& variable, const QString& word,
                                                                   double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1var point%6 = %3.Get%4();%2%1%3.Set%4(%5, point%6.Y);%2", variable, word, Fixed{value}, number);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetSecondCoordinate(const QString& variable, const QString& word,
                                                                    double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1var point%6 = %3.Get%4();%2%1%3.Set%4(point%6.X, %5);%2", variable, word, Fixed{value}, number);
}
