// C++ COM texts of text styles and shape files; the logic stands in objects/text_styles.cpp.
#include "backends/cppcom/object.h"

QString CZtConverterKVAPIObjectCPPCOM::WriteCreateTextStyle(const QString& variable, const QString& name,
                                                            const QString& searchName)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvCreateObjectResult_e result%3;%2%1BSTR textStyleName%4 = L\"%5\";%2%1BSTR dumyStyleName%4 = L\"%7\";%2%1%6 = kvDoc->GetTextStyleManager()->GetTextStyle( dumyStyleName%4 );%2%1if( %6 == 0 )%2%1{%2%1    %6 = kvDoc->GetTextStyleManager()->CreateTextStyle( textStyleName%4, &result%3 );%2%1}%2",
        number, number, name, variable, searchName);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteRenameStyle(const QString& variable, const QString& name, bool activate)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement(
        "%1kvCreateObjectResult_e result%3;%2%1BSTR styleName%4 = L\"%5\";%2%1%6->Rename( styleName%4, &result%3 );%2",
        number, number, name, variable);
    if (activate)
    {
        text += Line("%1%2->Activate();%3", variable, kv::LineEnd());
    }
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteLoadShape(const QString& path)
{
    return Statement(
        "%1IShapeManagerPtr kvShapeManager = kvDoc->GetShapeManager();%2%1kvShapeManager->Load( L\"%3\" );%2", path);
}
