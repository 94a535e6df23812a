// C++ API texts of settings of dimensions and of dimension styles; the logic stands in objects/dimension_overrides.cpp
// and objects/dimension_styles.cpp.
#include "backends/cpp/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteGetDimensionOptions(const QString& variable, const QString& owner,
                                                             const QString& typeName)
{
    return Statement("%1kv%5_ptr %3;%2%1%4->Get%5( &%3 );%2", variable, owner, typeName);
}

QString CZtConverterKVAPIObjectCPP::WriteSetArrow(const QString& variable, const QString& setter, std::int32_t type,
                                                  const QString& name)
{
    return Statement("%1%3->%4( %5, L\"%6\" );%2", variable, setter,
                     kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::DimensionArrowType, type), name);
}

QString CZtConverterKVAPIObjectCPP::WriteSetStyleArrow(const QString& variable, const QString& setter,
                                                       std::int32_t type, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvDimensionArrowType_e arrowType%3=%4;%2"
                     "%1kvString arrowName%3 = L\"%5\";%2%6->%7( arrowType%3, arrowName%3 );%2",
                     number, kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::DimensionArrowType, type), name,
                     variable, setter);
}

QString CZtConverterKVAPIObjectCPP::WriteSetCenterMark(const QString& variable, const QString& setter,
                                                       const std::optional<std::int32_t>& display,
                                                       const std::optional<double>& size)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1kvDimensionCenterMarkDisplay_e CenterMarkDisplay%3;%2"
                             "%1double markSize%3;%2"
                             "%1%4->GetCenterMarkDisplay( &CenterMarkDisplay%3, &markSize%3 );%2",
                             number, variable);
    if (display)
    {
        text += Statement("%1CenterMarkDisplay%3 = %4;%2", number,
                          kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::DimensionCenterMarkDisplay, *display));
    }
    if (size)
    {
        text += Statement("%1markSize%3 = %4;%2", number, Fixed{*size});
    }
    text += Statement("%1%3->%4( CenterMarkDisplay%5, markSize%5 );%2", variable, setter, number);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetPointX(const QString& variable, const QString& word, double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1double x%6, y%6, z%6;%2"
                     "%1%3->Get%4( &x%6, &y%6, &z%6 );%2"
                     "%1%3->Set%4( %5, y%6, z%6 );%2",
                     variable, word, Fixed{value}, number);
}

QString CZtConverterKVAPIObjectCPP::WriteSetPointY(const QString& variable, const QString& word, double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1double x%6, y%6, z%6;%2"
                     "%1%3->Get%4( &x%6, &y%6, &z%6 );%2"
                     "%1%3->Set%4( x%6, %5, z%6 );%2",
                     variable, word, Fixed{value}, number);
}

QString CZtConverterKVAPIObjectCPP::WriteSetDimensionScale(const QString& variable, const QString& setter,
                                                           std::int32_t kind, double scale)
{
    return Statement("%1%3->%4( %5, %6 );%2", variable, setter,
                     kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::DimensionScale, kind), Fixed{scale});
}

QString CZtConverterKVAPIObjectCPP::WriteSetExtensionLineFixedLength(const QString& variable, bool isFixed,
                                                                     double length)
{
    return Statement("%1%3->SetExtensionLineFixedLength(%4, %5);%2", variable, FlagWord(isFixed), Fixed{length});
}

QString CZtConverterKVAPIObjectCPP::WriteSetEnumPair(const QString& variable, const QString& word,
                                                     const QString& constant, double number)
{
    return Statement("%1%3->put_%4(%5, %6);%2", variable, word, constant, Fixed{number});
}

QString CZtConverterKVAPIObjectCPP::WriteCreateDimensionStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvCreateObjectResult_e result%3;%2"
                     "%1kvString dimStyleName%4 = L\"%5\";%2"
                     "%1kvDimensionStyleManager_ptr DimensionStyleManager%3;%2"
                     "%1kvDoc->GetDimensionStyleManager(&DimensionStyleManager%3);%2"
                     "%1DimensionStyleManager%3->CreateDimensionStyle( dimStyleName%4, &%6, &result%3 );%2",
                     number, number, name, variable);
}
