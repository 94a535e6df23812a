// C# texts of text styles and shape files; the logic stands in objects/text_styles.cpp.
#include "backends/csharp/object.h"

QString CZtConverterKVAPIObjectCSharp::WriteCreateTextStyle(const QString& variable, const QString& name,
                                                            const QString& searchName)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvCreateObjectResult_e result%3;%2%1string textStyleName%4 = \"%5\";%2%1string dumyStyleName%4 = \"%7\";%2%1%6 = kvApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( dumyStyleName%4 );%2%1if (null == %6)%2%1{%2%1    %6 = kvApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle( textStyleName%4, out result%3 );%2%1}%2",
        number, number, name, variable, searchName);
}

QString CZtConverterKVAPIObjectCSharp::WriteRenameStyle(const QString& variable, const QString& name, bool activate)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement(
        "%1kvCreateObjectResult_e result%3;%2%1string styleName%4 = \"%5\";%2%1%6.Rename( styleName%4, out result%3 );%2",
        number, number, name, variable);
    if (activate)
    {
        text += Line("%1%2.Activate();%3", variable, kv::LineEnd());
    }
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteLoadShape(const QString& path)
{
    return Statement("%1ShapeManager kvShapeManager = kvDoc.GetShapeManager();%2%1kvShapeManager.Load( \"%3\" );%2",
                     path);
}
