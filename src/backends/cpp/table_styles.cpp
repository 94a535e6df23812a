// C++ API texts of table styles; the logic stands in objects/table_styles.cpp.
#include "backends/cpp/object.h"
#include "backends/text/enumerations.h"

QString CZtConverterKVAPIObjectCPP::WriteCreateTableStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvCreateObjectResult_e result%3;%2"
                     "%1kvString tableStyleName%4 = L\"%5\";%2"
                     "%1kvTableStyleManager_ptr TableStyleManager%3;%2"
                     "%1kvDoc->GetTableStyleManager(&TableStyleManager%3);%2"
                     "%1TableStyleManager%3->CreateTableStyle( tableStyleName%4, &%6, &result%3 );%2",
                     number, number, name, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteSetBordersLineWeight(const QString& variable, std::int32_t cellType,
                                                              std::int32_t lineType, std::int32_t weight)
{
    return Line("%1 %2->SetBordersLineWeight(%3,%4,%5);%6", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableBordersLineType, lineType),
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::LineWeight, weight), kv::LineEnd());
}
