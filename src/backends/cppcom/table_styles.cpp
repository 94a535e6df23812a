// C++ COM texts of table styles; the logic stands in objects/table_styles.cpp.
#include "backends/cppcom/color_expression.h"
#include "backends/cppcom/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::WriteCreateTableStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvCreateObjectResult_e result%3;%2"
                     "%1BSTR tableStyleName%4 = L\"%5\";%2"
                     "%1%6 = kvDoc->GetTableStyleManager()->CreateTableStyle( tableStyleName%4, &result%3 );%2",
                     number, number, name, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetCellAlignment(const QString& variable, std::int32_t cellType,
                                                             const QString& alignment)
{
    return Line("%1 %2->SetAlignment(%3,%4);%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellAlignment, alignment), kv::LineEnd());
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetCellColor(const QString& variable, const QString& word,
                                                         std::int32_t cellType, const OdCmColor& color)
{
    const QString type = kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType);
    return word == QLatin1String("backgroundColor")
               ? Line("%1 %2->SetBackgroundColor(%3,%4);%5", variable, type, ColorExpression(color), kv::LineEnd())
               : Line("%1 %2->SetTextColor(%3,%4);%5", variable, type, ColorExpression(color), kv::LineEnd());
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetCellTextHeight(const QString& variable, std::int32_t cellType,
                                                              double height)
{
    return Line("%1 %2->SetTextHeight(%3,%4);%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType), Fixed{height},
                kv::LineEnd());
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetCellTextStyle(const QString& variable, std::int32_t cellType,
                                                             const QString& style)
{
    return Line("%1 %2->SetTextStyle(%3,L\"%4\");%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType), style, kv::LineEnd());
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetCellMargin(const QString& variable, const QString& word,
                                                          std::int32_t cellType, double margin)
{
    const QString type = kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType);
    return word == QLatin1String("horzCellMargin")
               ? Line("%1 %2->SetHorizontalMargin(%3,%4);%5", variable, type, Fixed{margin}, kv::LineEnd())
               : Line("%1 %2->SetVerticalMargin(%3,%4);%5", variable, type, Fixed{margin}, kv::LineEnd());
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetBordersColor(const QString& variable, std::int32_t cellType,
                                                            std::int32_t lineType, const OdCmColor& color)
{
    return Line("%1 %2->SetBordersColor(%3,%4,%5);%6", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableBordersLineType, lineType),
                ColorExpression(color), kv::LineEnd());
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetBordersLineWeight(const QString& variable, std::int32_t cellType,
                                                                 std::int32_t lineType, std::int32_t weight)
{
    return Line("%1 %2->SetBordersLineWeight(%3,%4,%5);%6", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableBordersLineType, lineType),
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::LineWeight, weight), kv::LineEnd());
}
