// VBA texts of text styles and shape files; the logic stands in objects/text_styles.cpp.
#include "backends/vba/object.h"

QString CZtConverterKVAPIObjectVba::WriteCreateTextStyle(const QString& variable, const QString& name,
                                                         const QString& searchName)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim result%3 As Morvane.kvCreateObjectResult_e%2%1Dim textStyleName%4 As String%2%1Dim textStyleName%4 As String%2%1textStyleName%4 = \"%5\"%2%1dumyStyleName%4 = \"%7\"%2%1%6 = kvApp.GetActiveDocument().GetTextStyleManager().GetTextStyle dumyStyleName%4%2%1If %6 Is Nothing Then%2%1    kvApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle textStyleName%4, %6, result%3%2%1End If%2",
        number, number, name, variable, searchName);
}

QString CZtConverterKVAPIObjectVba::WriteRenameStyle(const QString& variable, const QString& name, bool activate)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement(
        "%1Dim result%3 As Morvane.kvCreateObjectResult_e%2%1Dim styleName%4 As String%2%1styleName%4 = \"%5\"%2%1%6.Rename styleName%4, result%3%2",
        number, number, name, variable);
    if (activate)
    {
        text += Line("%1%2.Activate%3", variable, kv::LineEnd());
    }
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteLoadShape(const QString& path)
{
    return Statement(
        "%1Dim kvShapeManager As Morvane.ShapeManager%2%1Set kvShapeManager = kvDoc.GetShapeManager()%2%1kvShapeManager.Load \"%3\"%2",
        path);
}
