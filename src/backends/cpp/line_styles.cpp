// C++ API texts of line styles and rich line styles; the logic stands in objects/line_styles.cpp.
#include "backends/cpp/object.h"

QString CZtConverterKVAPIObjectCPP::WriteLoadLineStyle(const QString& variable, const QString& name,
                                                       const QString& file)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvCreateObjectResult_e result%3;%2%1kvLineStyleManager_ptr LineStyleManager%3;%2%1kvDoc->GetLineStyleManager(&LineStyleManager%3);%2%1LineStyleManager%3->LoadLineStyle( L\"%4\",L\"%5\", &%6 , &result%3);%2",
        number, name, file, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteCreateRichLineStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvCreateObjectResult_e result%3;%2%1kvString richLineStyleName%4 = L\"%5\";%2%1kvRichLineStyleManager_ptr RichLineStyleManager%3;%2%1kvDoc->GetRichLineStyleManager(&RichLineStyleManager%3);%2%1RichLineStyleManager%3->CreateRichLineStyle( richLineStyleName%4, &%6, &result%3 );%2",
        number, number, name, variable);
}
