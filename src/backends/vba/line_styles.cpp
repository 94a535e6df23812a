// VBA texts of line styles and rich line styles; the logic stands in objects/line_styles.cpp.
#include "backends/vba/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVba::WriteLoadLineStyle(const QString& variable, const QString& name,
                                                       const QString& file)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim result%3 As Morvane.kvCreateObjectResult_e%2%1Dim LineStyleManager%3 As Morvane.LineStyleManager%2%1Set LineStyleManager%3 = kvDoc.GetLineStyleManager()%2%1Set %6 = LineStyleManager%3.LoadLineStyle( \"%4\",\"%5\" , result%3)%2",
        number, name, file, variable);
}

QString CZtConverterKVAPIObjectVba::WriteCreateRichLineStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim result%3 As Morvane.kvCreateObjectResult_e%2%1Dim richLineStyleName%4 As String%2%1richLineStyleName%4 = \"%5\"%2%1Set %6 = kvDoc.GetRichLineStyleManager().CreateRichLineStyle( richLineStyleName%4, result%3 )%2",
        number, number, name, variable);
}

QString CZtConverterKVAPIObjectVba::WriteSetRichLine(const QString& variable, std::int32_t index, double offset,
                                                     std::int32_t color, const QString& style)
{
    return Statement("%1%3.DeleteLine(%4)%2%1%3.AddLine %5, kvApp.GetColorByIndex( %6 ), \"%7\"%2", variable, index,
                     Fixed{offset}, color, style);
}

QString CZtConverterKVAPIObjectVba::WriteSetRichLineOffset(const QString& variable, std::int32_t index, double offset)
{
    return Statement("%1%3.SetLineOffset %4, %5%2", variable, index, Fixed{offset});
}

QString CZtConverterKVAPIObjectVba::WriteSetRichLineColor(const QString& variable, std::int32_t index,
                                                          std::int32_t color)
{
    return Statement("%1%3.SetLineColor %4, kvApp.GetColorByIndex( %5 )%2", variable, index, color);
}

QString CZtConverterKVAPIObjectVba::WriteSetRichLineStyle(const QString& variable, std::int32_t index,
                                                          const QString& style)
{
    return Statement("%1%3.SetLineStyle %4, \"%5\"%2", variable, index, style);
}
