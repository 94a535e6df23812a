// C++ API texts of what a hatch is filled with; the logic stands in objects/hatch_properties.cpp.
#include "backends/cpp/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteGetHatchPattern(const QString& pattern, const QString& hatch)
{
    return Statement("%1kvHatchPattern_ptr %3;%2%1%4->GetHatchPattern( &%3 );%2", pattern, hatch);
}

QString CZtConverterKVAPIObjectCPP::WriteSetHatchData(const QString& pattern, const HatchData& data)
{
    const std::int32_t number = NextLocalNumber();
    const QString name = kv::Fill("PatternName%1", number);
    const QString angle = kv::Fill("Angle%1", number);
    const QString scale = kv::Fill("Scale%1", number);
    const QString type = kv::Fill("HatchPatternType%1", number);
    const QString spacing = kv::Fill("Spacing%1", number);
    QString text = Statement("%1kvString %3;%2%1double %4;%2%1double %5;%2%1kvHatchPatternType_e %6;%2%1double %7;%2%2",
                             name, angle, scale, type, spacing);
    text += Statement("%1%3->GetHatchOrSolidData( &%4, &%5, &%6, &%7, &%8 );%2", pattern, name, angle, scale, type,
                      spacing);
    if (data.name)
    {
        text += Statement("%1%3 = L\"%4\";%2", name, *data.name);
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
        text += Statement("%1%3 = %4;%2", type, kv::FormOfConstant(kv::EnumForm::Bare, data.type));
    }
    if (data.spacing)
    {
        text += Statement("%1%3 = %4;%2", spacing, Fixed{*data.spacing});
    }
    text += Statement("%1%3->SetHatchOrSolidData( %4, %5, %6, %7, %8 );%2", pattern, name, angle, scale, type, spacing);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetGradientData(const QString& pattern, const GradientData& data)
{
    QString text = Statement(
        "%2%1kvColor_ptr color1;%2%1kvColor_ptr color2;%2%1bool bCentered;%2%1double gradientAngle;%2%2%1%3->GetGradientData( &color1, &color2, &bCentered, &gradientAngle);%2",
        pattern);
    if (data.color1)
    {
        text += GradientColor(*data.color1, "color1");
    }
    if (data.color2)
    {
        text += GradientColor(*data.color2, "color2");
    }
    if (data.angle)
    {
        text += Line("%1gradientAngle = %3;", Fixed{*data.angle});
    }
    if (data.centered)
    {
        text += Line("%1bCentered = %3;", FlagWord(*data.centered));
    }
    text += Statement("%2%1%3->SetGradientData(color1, color2, bCentered, gradientAngle);%2", pattern);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetHatchRegionDetection(const QString& pattern, const QString& constant)
{
    return Statement("%2%1%3->put_InternalRegionDetection( %4 );%2", pattern,
                     kv::FormOfConstant(kv::EnumForm::Bare, constant));
}

QString CZtConverterKVAPIObjectCPP::WriteSetFirstCoordinate(const QString& variable, const QString& word, double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1double x%6, y%6;%2%1%3->Get%4( &x%6, &y%6 );%2%1%3->Set%4( %5, y%6 );%2", variable, word,
                     Fixed{value}, number);
}

QString CZtConverterKVAPIObjectCPP::WriteSetSecondCoordinate(const QString& variable, const QString& word, double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1double x%6, y%6;%2%1%3->Get%4( &x%6, &y%6 );%2%1%3->Set%4( x%6, %5 );%2", variable, word,
                     Fixed{value}, number);
}

QString CZtConverterKVAPIObjectCPP::GradientColor(const OdCmColor& color, const char* local) const
{
    return color.colorMethod() != OdCmColor::Method::ByColor
               ? kv::Fill("%2m_pKvApp->GetColorByIndex( %1, &%3 );", color.colorIndex(), CurrentIndent(), local)
               : kv::Fill("%4m_pKvApp->GetRGBColor( %1 ,%2 ,%3, &%5 );", int{color.red()}, int{color.green()},
                          int{color.blue()}, CurrentIndent(), local);
}
