// C++ API texts of text styles and shape files; the logic stands in objects/text_styles.cpp.
#include "backends/cpp/object.h"

QString CZtConverterKVAPIObjectCPP::WriteCreateTextStyle(const QString& variable, const QString& name,
                                                         const QString& searchName)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvCreateObjectResult_e result%3;%2%1kvString textStyleName%4 = L\"%5\";%2%1kvString dumyStyleName%4 = L\"%7\";%2%1kvTextStyleManager_ptr TextStyleManager%3;%2%1kvDoc->GetTextStyleManager(&TextStyleManager%3);%2%1TextStyleManager%3->GetTextStyle( dumyStyleName%4, &%6);%2%1if( %6 == 0 )%2%1{%2%1    TextStyleManager%3->CreateTextStyle( textStyleName%4, &%6,&result%3 );%2%1}%2",
        number, number, name, variable, searchName);
}

QString CZtConverterKVAPIObjectCPP::WriteRenameStyle(const QString& variable, const QString& name, bool activate)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement(
        "%1kvCreateObjectResult_e result%3;%2%1kvString styleName%4 = L\"%5\";%2%1%6->Rename( styleName%4, &result%3 );%2",
        number, number, name, variable);
    if (activate)
    {
        text += Line("%1%2->Activate();%3", variable, kv::LineEnd());
    }
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteLoadShape(const QString& path)
{
    return Statement(
        "%1kvShapeManager_ptr kvShapeManager;%2%1kvDoc->GetShapeManager( &kvShapeManager );%2%1kvShapeManager->Load( L\"%3\" );%2",
        path);
}
