// C# texts of settings of dimensions and of dimension styles; the logic stands in objects/dimension_overrides.cpp and
// objects/dimension_styles.cpp.
#include "backends/csharp/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCSharp::WriteGetDimensionOptions(const QString& variable, const QString& owner,
                                                                const QString& typeName)
{
    return Statement("%1%5 %3 = %4.Get%5();%2", variable, owner, typeName);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetArrow(const QString& variable, const QString& setter, std::int32_t type,
                                                     const QString& name)
{
    return Statement("%1%3.%4( %5, \"%6\" );%2", variable, setter,
                     kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::DimensionArrowType, type), name);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetStyleArrow(const QString& variable, const QString& setter,
                                                          std::int32_t type, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvDimensionArrowType_e arrowType%3=%4;%2"
                     "%1string arrowName%3 = \"%5\";%2%6.%7( arrowType%3, arrowName%3 );%2",
                     number, kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::DimensionArrowType, type), name,
                     variable, setter);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetCenterMark(const QString& variable, const QString& setter,
                                                          const std::optional<std::int32_t>& display,
                                                          const std::optional<double>& size)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1kvDimensionCenterMarkDisplay_e CenterMarkDisplay%3;%2"
                             "%1double markSize%3;%2"
                             "%1%4.GetCenterMarkDisplay( out CenterMarkDisplay%3, out markSize%3 );%2",
                             number, variable);
    if (display)
    {
        text +=
            Statement("%1CenterMarkDisplay%3 = %4;%2", number,
                      kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::DimensionCenterMarkDisplay, *display));
    }
    if (size)
    {
        text += Statement("%1markSize%3 = %4;%2", number, Fixed{*size});
    }
    text += Statement("%1%3.%4( CenterMarkDisplay%5, markSize%5 );%2", variable, setter, number);
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteSetPointX(const QString& variable, const QString& word, double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1double x%6, y%6, z%6;%2"
                     "%1%3.Get%4( out x%6, out y%6, out z%6 );%2"
                     "%1%3.Set%4( %5, y%6, z%6 );%2",
                     variable, word, Fixed{value}, number);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetPointY(const QString& variable, const QString& word, double value)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1double x%6, y%6, z%6;%2"
                     "%1%3.Get%4( out x%6, out y%6, out z%6 );%2"
                     "%1%3.Set%4( x%6, %5, z%6 );%2",
                     variable, word, Fixed{value}, number);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetDimensionScale(const QString& variable, const QString& setter,
                                                              std::int32_t kind, double scale)
{
    return Statement("%1%3.%4( %5, %6 );%2", variable, setter,
                     kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::DimensionScale, kind), Fixed{scale});
}

QString CZtConverterKVAPIObjectCSharp::WriteSetExtensionLineFixedLength(const QString& variable, bool isFixed,
                                                                        double length)
{
    return Statement("%1%3.SetExtensionLineFixedLength(%4, %5);%2", variable, FlagWord(isFixed), Fixed{length});
}

QString CZtConverterKVAPIObjectCSharp::WriteSetEnumPair(const QString& variable, const QString& word,
                                                        const QString& constant, double number)
{
    return Statement("%1%3.%4(%5, %6);%2", variable, word, constant, Fixed{number});
}

QString CZtConverterKVAPIObjectCSharp::WriteCreateDimensionStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvCreateObjectResult_e result%3;%2"
                     "%1string dimStyleName%4 = \"%5\";%2"
                     "%1%6 = kvDoc.GetDimensionStyleManager().CreateDimensionStyle( dimStyleName%4, out result%3 );%2",
                     number, number, name, variable);
}
