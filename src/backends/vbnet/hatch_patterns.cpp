// VB.NET texts of what a hatch is filled with; the logic stands in objects/hatch_properties.cpp.
#include "backends/text/color_expression.h"
#include "backends/text/enumerations.h"
#include "backends/vbnet/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVbNet::WriteGetHatchPattern(const QString& pattern, const QString& hatch)
{
    return Statement("%1Dim %3 As Morvane.HatchPattern = %4.GetHatchPattern()%2", pattern, hatch);
}

QString CZtConverterKVAPIObjectVbNet::WriteSetHatchData(const QString& pattern, const HatchData& data)
{
    const std::int32_t number = NextLocalNumber();
    const QString name = kv::Fill("PatternName%1", number);
    const QString angle = kv::Fill("Angle%1", number);
    const QString scale = kv::Fill("Scale%1", number);
    const QString type = kv::Fill("HatchPatternType%1", number);
    const QString spacing = kv::Fill("Spacing%1", number);
    QString text = Statement(
        "%1Dim %3 As String%2%1Dim %4 As Double%2%1Dim %5 As Double%2%1Dim %6 As Morvane.kvHatchPatternType_e%2%1Dim %7 As Double%2%2",
        name, angle, scale, type, spacing);
    text += Statement("%1%3.GetHatchOrSolidData( %4, %5, %6, %7, %8 )%2", pattern, name, angle, scale, type, spacing);
    if (data.name)
    {
        text += Statement("%1%3 = \"%4\"%2", name, *data.name);
    }
    if (data.angle)
    {
        text += Statement("%1%3 = %4%2", angle, Fixed{*data.angle});
    }
    if (data.scale)
    {
        text += Statement("%1%3 = %4%2", scale, Fixed{*data.scale});
    }
    if (!data.type.isEmpty())
    {
        text += Statement("%1%3 = %4%2", type, kv::FormOfConstant(kv::EnumForm::Morvane, data.type));
    }
    if (data.spacing)
    {
        text += Statement("%1%3 = %4%2", spacing, Fixed{*data.spacing});
    }
    text += Statement("%1%3.SetHatchOrSolidData( %4, %5, %6, %7, %8 )%2", pattern, name, angle, scale, type, spacing);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteSetGradientData(const QString& pattern, const GradientData& data)
{
    QString text = Statement(
        "%2%1Dim color1 As Morvane.Color%2%1Dim color2 As Morvane.Color%2%1Dim bCentered As Boolean%2%1Dim gradientAngle As Double%2%2%1%3.GetGradientData( color1, color2, bCentered, gradientAngle)%2",
        pattern);
    if (data.color1)
    {
        text += Statement("%1color1 = %3%2", kv::ColorExpression(*data.color1));
    }
    if (data.color2)
    {
        text += Statement("%1color2 = %3%2", kv::ColorExpression(*data.color2));
    }
    if (data.angle)
    {
        text += Statement("%1gradientAngle = %3%2", Fixed{*data.angle});
    }
    if (data.centered)
    {
        text += Statement("%1bCentered = %3%2", FlagWord(*data.centered));
    }
    text += Statement("%2%1%3.SetGradientData(color1, color2, bCentered, gradientAngle)%2", pattern);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteSetHatchRegionDetection(const QString& pattern, const QString& constant)
{
    return Statement("%2%1%3.InternalRegionDetection = %4%2", pattern,
                     kv::FormOfConstant(kv::EnumForm::Morvane, constant));
}

QString CZtConverterKVAPIObjectVbNet::WriteSetFirstCoordinate(const QString& variable, const QString& word,
                                                              double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim x%6 As Double, y%6 As Double%2%1%3.Get%4( x%6, y%6 )%2%1%3.Set%4( %5, y%6 )%2", variable,
                     word, Fixed{value}, number);
}

QString CZtConverterKVAPIObjectVbNet::WriteSetSecondCoordinate(const QString& variable, const QString& word,
                                                               double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim x%6 As Double, y%6 As Double%2%1%3.Get%4( x%6, y%6 )%2%1%3.Set%4( x%6, %5 )%2", variable,
                     word, Fixed{value}, number);
}
