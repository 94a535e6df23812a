// VB.NET texts of settings of dimensions and of dimension styles; the logic stands in objects/dimension_overrides.cpp
// and objects/dimension_styles.cpp.
#include "backends/text/enumerations.h"
#include "backends/vbnet/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVbNet::WriteGetDimensionOptions(const QString& variable, const QString& owner,
                                                               const QString& typeName)
{
    return Statement("%1Dim %3 As Morvane.%5 = %4.Get%5()%2", variable, owner, typeName);
}

QString CZtConverterKVAPIObjectVbNet::WriteSetArrow(const QString& variable, const QString& setter, std::int32_t type,
                                                    const QString& name)
{
    return Statement("%1%3.%4( %5, \"%6\" )%2", variable, setter,
                     kv::EnumConstant(kv::EnumForm::Morvane, kv::EnumKind::DimensionArrowType, type), name);
}

QString CZtConverterKVAPIObjectVbNet::WriteSetStyleArrow(const QString& variable, const QString& setter,
                                                         std::int32_t type, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim arrowType%3 As Morvane.kvDimensionArrowType_e=%4%2"
                     "%1Dim arrowName%3 As String = \"%5\"%2%6.%7( arrowType%3, arrowName%3 )%2",
                     number, kv::EnumConstant(kv::EnumForm::Morvane, kv::EnumKind::DimensionArrowType, type), name,
                     variable, setter);
}

QString CZtConverterKVAPIObjectVbNet::WriteSetCenterMark(const QString& variable, const QString& setter,
                                                         const std::optional<std::int32_t>& display,
                                                         const std::optional<double>& size)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1Dim CenterMarkDisplay%3 As Morvane.kvDimensionCenterMarkDisplay_e%2"
                             "%1Dim markSize%3 As Double%2"
                             "%1%4.GetCenterMarkDisplay( CenterMarkDisplay%3, markSize%3 )%2",
                             number, variable);
    if (display)
    {
        text += Statement("%1CenterMarkDisplay%3 = %4%2", number,
                          kv::EnumConstant(kv::EnumForm::Morvane, kv::EnumKind::DimensionCenterMarkDisplay, *display));
    }
    if (size)
    {
        text += Statement("%1markSize%3 = %4%2", number, Fixed{*size});
    }
    text += Statement("%1%3.%4( CenterMarkDisplay%5, markSize%5 )%2", variable, setter, number);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteSetPointX(const QString& variable, const QString& word, double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim x%6 As Double, y%6 As Double, z%6 As Double%2"
                     "%1%3.Get%4( x%6, y%6, z%6 )%2"
                     "%1%3.Set%4( %5, y%6, z%6 )%2",
                     variable, word, Fixed{value}, number);
}

QString CZtConverterKVAPIObjectVbNet::WriteSetPointY(const QString& variable, const QString& word, double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim x%6 As Double, y%6 As Double, z%6 As Double%2"
                     "%1%3.Get%4( x%6, y%6, z%6 )%2"
                     "%1%3.Set%4( x%6, %5, z%6 )%2",
                     variable, word, Fixed{value}, number);
}

QString CZtConverterKVAPIObjectVbNet::WriteSetDimensionScale(const QString& variable, const QString& setter,
                                                             std::int32_t kind, double scale)
{
    return Statement("%1%3.%4( %5, %6 )%2", variable, setter,
                     kv::EnumConstant(kv::EnumForm::Morvane, kv::EnumKind::DimensionScale, kind), Fixed{scale});
}

QString CZtConverterKVAPIObjectVbNet::WriteSetExtensionLineFixedLength(const QString& variable, bool isFixed,
                                                                       double length)
{
    return Statement("%1%3.SetExtensionLineFixedLength(%4, %5)%2", variable, FlagWord(isFixed), Fixed{length});
}

QString CZtConverterKVAPIObjectVbNet::WriteSetEnumPair(const QString& variable, const QString& word,
                                                       const QString& constant, double number)
{
    return Statement("%1%3.%4(%5, %6)%2", variable, word, constant, Fixed{number});
}

QString CZtConverterKVAPIObjectVbNet::WriteCreateDimensionStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim result%3 As Morvane.kvCreateObjectResult_e%2"
                     "%1Dim dimStyleName%4 As String = \"%5\"%2"
                     "%1%6 = kvDoc.GetDimensionStyleManager().CreateDimensionStyle( dimStyleName%4, result%3 )%2",
                     number, number, name, variable);
}
